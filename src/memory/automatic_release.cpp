#include "memory/automatic_release.h"

#include <array>

#include "base/numbers.h"
#include "memory/amount_lists.h"

namespace qdix::memory {

namespace {

constexpr std::array<std::string_view, 9> kCheckSeconds{"5",   "10",  "20",  "30", "60",
                                                        "120", "180", "240", "300"};
/// Longest check interval that Timer2 counts in one tick. For longer ones the timer ticks once a minute.
constexpr double kMinuteSeconds = 60;
constexpr double kMsPerSecond = 1000;

/// The companion launcher has this title while it is working and must not be disturbed.
constexpr const char* kCompanionClass = "ThunderRT6Main";
constexpr const char* kCompanionWorking = "Kestrin Launcher (Working)";

constexpr std::string_view kCounterAtLoad = "Auto Detection feature has detected and released RAM ";
constexpr std::string_view kCounterLater = "Automatic feature has detected and released RAM ";

}  // namespace

AutomaticRelease::AutomaticRelease(const os::System& system, registry::SettingsStore& settings,
                                   screens::AutomaticScreen& screen, ui::TabStrip& tabs, ui::Timer& timer2,
                                   host::Boxes& boxes, ScheduledRelease& scheduled)
    : system_(system),
      settings_(settings),
      screen_(screen),
      timer2_(timer2),
      scheduled_(scheduled),
      cpu_limit_({screen.Check9, screen.Text9, tabs, screens::kAutomaticTab},
                 {setting::kCpuAutoActive, setting::kAutoCpu}, settings, boxes) {
  using ui::Handler;
  timer2_.OnTimer = Handler::To<&AutomaticRelease::Timer2_Timer>(*this);
  screen_.Check1.OnClick = Handler::To<&AutomaticRelease::Check1_Click>(*this);
  screen_.List2.OnClick = Handler::To<&AutomaticRelease::List2_Click>(*this);
  screen_.List4.OnClick = Handler::To<&AutomaticRelease::List4_Click>(*this);
  screen_.Text2.OnChange = Handler::To<&AutomaticRelease::Text2_Change>(*this);
  screen_.VScroll2.OnChange = Handler::To<&AutomaticRelease::VScroll2_Change>(*this);
  screen_.Check9.OnClick = Handler::To<&AutomaticRelease::Check9_Click>(*this);
  screen_.Text9.OnKeyPress =
      base::Callback<base::Status(char&)>::To<&AutomaticRelease::Text9_KeyPress>(*this);
  screen_.Text9.OnValidate =
      base::Callback<base::Result<bool>()>::To<&AutomaticRelease::Text9_Validate>(*this);
  screen_.Command7.OnClick = Handler::To<&AutomaticRelease::Command7_Click>(*this);
}

void AutomaticRelease::FillLists() {
  AddItems(screen_.List2, kCheckSeconds);
  AddItems(screen_.List4, ReleaseAmounts());
}

void AutomaticRelease::StartCounter() {
  settings_.Save(setting::kCounterDate, system_.clock.Now());
  settings_.Save(setting::kCounterValue, 0);
}

void AutomaticRelease::LoadCounter() {
  const std::string stored_date = settings_.Stored(setting::kCounterDate).value_or("");
  double start_date = base::ParseLeadingNumber(stored_date);
  if (!base::IsNumber(stored_date) || system_.clock.LongDate(start_date).empty()) {
    start_date = system_.clock.Now();
    settings_.Save(setting::kCounterDate, start_date);
  }
  const double stored_count = settings_.Get(setting::kCounterValue);
  counter_start_date_ = start_date;
  auto_release_count_ = base::ToInt32(stored_count).ValueOr(0);
  ShowCounter(kCounterAtLoad);
}

void AutomaticRelease::ShowCounter(std::string_view beginning) {
  std::string text(beginning);
  text += base::TextOf(auto_release_count_);
  text += " times since Q-DIX was started on ";
  text += system_.clock.LongDate(counter_start_date_);
  screen_.lblCounter.SetCaption(text);
}

void AutomaticRelease::LoadThreshold(double total_ram_mb) {
  const std::string stored =
      settings_.Stored(setting::kMinRam).value_or(base::ShortestText(DefaultThreshold(total_ram_mb)));
  screen_.VScroll2.SetNearest(base::ParseLeadingNumber(stored));
  screen_.Text2.SetText(stored);
}

void AutomaticRelease::LoadAmount(double total_ram_mb) {
  const double proposed = DefaultAmount(screen_.List4, total_ram_mb);
  SelectNumber(screen_.List4, settings_.NumberOr(setting::kAutoQuondix, proposed));
}

void AutomaticRelease::LoadActive() {
  screen_.Check1.SetTicked(settings_.Get(setting::kAutoActive));
  if (screen_.Check1.Ticked()) timer2_.SetNearestInterval(SelectedNumber(screen_.List2) * kMsPerSecond);
  timer2_.SetEnabled(screen_.Check1.Ticked());
}

void AutomaticRelease::LoadInterval() { SelectNumber(screen_.List2, settings_.Get(setting::kAutoSecs)); }

base::Status AutomaticRelease::Timer2_Timer() {
  if (system_.windows.FindWindowA(kCompanionClass, kCompanionWorking) != 0) return base::kDone;
  if (auto_check_ticks_ == 1) return CheckMemory();
  const base::Result<std::int16_t> count = base::AddInt16(auto_tick_count_, 1);
  if (!count.Ok()) return count.Error();
  auto_tick_count_ = count.Value();
  if (auto_tick_count_ != auto_check_ticks_) return base::kDone;
  const base::Status checked = CheckMemory();
  auto_tick_count_ = 0;
  return checked;
}

base::Status AutomaticRelease::CheckMemory() {
  const double available_mb = scheduled_.AvailableMb();
  return base::ParseLeadingNumber(screen_.Text2.Text()) > available_mb ? AutoMem() : base::kDone;
}

base::Status AutomaticRelease::AutoMem() {
  if (scheduled_.IsHeldBack(cpu_limit_)) return base::kDone;
  const base::Status drawn = scheduled_.PushBar();
  if (!drawn.Ok()) return drawn;
  if (scheduled_.Run(screen_.List4, ScheduledRelease::WhenFree::kStop) != ReleaseOutcome::kFinished) {
    return base::kDone;
  }
  const base::Result<std::int32_t> count = base::AddInt32(auto_release_count_, 1);
  if (!count.Ok()) return count.Error();
  auto_release_count_ = count.Value();
  ShowCounter(kCounterLater);
  settings_.Save(setting::kCounterValue, auto_release_count_);
  return base::kDone;
}

base::Status AutomaticRelease::Check1_Click() {
  timer2_.SetEnabled(screen_.Check1.Ticked());
  settings_.Save(setting::kAutoActive, screen_.Check1.Value());
  return base::kDone;
}

base::Status AutomaticRelease::List2_Click() {
  const double seconds = SelectedNumber(screen_.List2);
  const bool within_a_minute = seconds <= kMinuteSeconds;
  const base::Status armed = timer2_.SetInterval(
      static_cast<std::int32_t>((within_a_minute ? seconds : kMinuteSeconds) * kMsPerSecond));
  if (!armed.Ok()) return armed;
  auto_check_ticks_ = within_a_minute ? 1 : seconds / kMinuteSeconds;
  settings_.Save(setting::kAutoSecs, seconds);
  return base::kDone;
}

base::Status AutomaticRelease::List4_Click() {
  settings_.Save(setting::kAutoQuondix, SelectedNumber(screen_.List4));
  return base::kDone;
}

base::Status AutomaticRelease::Text2_Change() {
  settings_.Save(setting::kMinRam, screen_.Text2.Text());
  return base::kDone;
}

base::Status AutomaticRelease::VScroll2_Change() {
  screen_.Text2.SetText(base::TextOf(screen_.VScroll2.Value()));
  return base::kDone;
}

base::Status AutomaticRelease::Command7_Click() {
  counter_start_date_ = base::WholePart(system_.clock.Now());
  settings_.Save(setting::kCounterDate, counter_start_date_);
  auto_release_count_ = 0;
  settings_.Save(setting::kCounterValue, 0);
  ShowCounter(kCounterLater);
  return base::kDone;
}

}  // namespace qdix::memory
