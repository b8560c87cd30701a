#include "memory/startup_release.h"

#include <limits>

#include "base/numbers.h"
#include "memory/amount_lists.h"

namespace qdix::memory {

namespace {

/// A longer delay is counted in minutes, because a timer interval holds little more than one minute.
constexpr std::int32_t kMaxSingleDelaySeconds = 60;
constexpr std::int32_t kMsPerSecond = 1000;

}  // namespace

StartupRelease::StartupRelease(registry::SettingsStore& settings, screens::StartupScreen& screen,
                               ui::Timer& timer3, ScheduledRelease& scheduled)
    : settings_(settings), screen_(screen), timer3_(timer3), scheduled_(scheduled) {
  using ui::Handler;
  timer3_.OnTimer = Handler::To<&StartupRelease::Timer3_Timer>(*this);
  screen_.Combo1.OnLostFocus = Handler::To<&StartupRelease::Combo1_LostFocus>(*this);
  screen_.Text3.OnChange = Handler::To<&StartupRelease::Text3_Change>(*this);
  screen_.VScroll3.OnChange = Handler::To<&StartupRelease::VScroll3_Change>(*this);
  screen_.Check4.OnClick = Handler::To<&StartupRelease::Check4_Click>(*this);
}

void StartupRelease::FillLists() { AddItems(screen_.Combo1, ReleaseAmounts()); }

void StartupRelease::LoadWarnings() { screen_.Check4.SetTicked(settings_.Get(setting::kWarnings)); }

void StartupRelease::LoadAmount(double total_ram_mb) {
  SelectNumber(screen_.Combo1, settings_.NumberOr(setting::kStartupRam, HalfOfMemory(total_ram_mb)));
}

void StartupRelease::LoadAndArmDelay() {
  const std::string stored = settings_.Get(setting::kStartupTime);
  const auto seconds = static_cast<std::int16_t>(
      base::ClampToInt32(base::ParseLeadingNumber(stored), 0, std::numeric_limits<std::int16_t>::max()));
  screen_.VScroll3.SetNearest(seconds);
  screen_.Text3.SetText(stored);
  if (seconds <= kMaxSingleDelaySeconds) {
    timer3_.SetNearestInterval(seconds * kMsPerSecond);
  } else {
    timer3_.SetNearestInterval(kMaxSingleDelaySeconds * kMsPerSecond);
    startup_delay_left_ = seconds;
  }
  timer3_.SetEnabled(true);
}

base::Status StartupRelease::Timer3_Timer() {
  if (startup_delay_left_ != 0) {
    const std::int32_t left_seconds = startup_delay_left_ - kMaxSingleDelaySeconds;
    if (left_seconds > kMaxSingleDelaySeconds) {
      startup_delay_left_ = static_cast<std::int16_t>(left_seconds);
      return base::kDone;
    }
    startup_delay_left_ = 0;
    return timer3_.SetInterval(left_seconds * kMsPerSecond);
  }
  const base::Status drawn = scheduled_.PushBar();
  if (!drawn.Ok()) return drawn;
  StartupMem();
  timer3_.SetEnabled(false);
  return base::kDone;
}

void StartupRelease::StartupMem() { scheduled_.Run(screen_.Combo1, ScheduledRelease::WhenFree::kGoOn); }

base::Status StartupRelease::Combo1_LostFocus() {
  settings_.Save(setting::kStartupRam, SelectedNumber(screen_.Combo1));
  return base::kDone;
}

base::Status StartupRelease::Text3_Change() {
  settings_.Save(setting::kStartupTime, screen_.Text3.Text());
  return base::kDone;
}

base::Status StartupRelease::VScroll3_Change() {
  screen_.Text3.SetText(base::TextOf(screen_.VScroll3.Value()));
  return base::kDone;
}

base::Status StartupRelease::Check4_Click() {
  settings_.Save(setting::kWarnings, screen_.Check4.Value());
  return base::kDone;
}

}  // namespace qdix::memory
