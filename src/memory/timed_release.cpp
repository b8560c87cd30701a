#include "memory/timed_release.h"

#include <array>
#include <span>

#include "base/concat.h"
#include "base/numbers.h"
#include "memory/amount_lists.h"

namespace qdix::memory {

namespace {

constexpr std::array<std::string_view, 7> kMinuteItems{"5", "10", "15", "20", "30", "40", "50"};
constexpr std::array<std::string_view, 17> kHourItems{"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8", "9",
                                                      "10", "12", "14", "16", "18", "20", "22", "24"};

}  // namespace

/// A unit of the interval: what the list offers, and where the choice from it is stored.
struct TimedRelease::Unit {
  std::span<const std::string_view> items;
  /// The stored "TimeUnit".
  double number;
  const registry::NumberSetting& interval;
  std::int32_t minutes;

  static const Unit kMinutes;
  static const Unit kHours;
};

constexpr TimedRelease::Unit TimedRelease::Unit::kMinutes{kMinuteItems, 1, setting::kTimeMinutes, 1};
constexpr TimedRelease::Unit TimedRelease::Unit::kHours{kHourItems, 2, setting::kTimeHours, 60};

TimedRelease::TimedRelease(registry::SettingsStore& settings, screens::TimeIntervalsScreen& screen,
                           ui::TabStrip& tabs, const Timers& timers, host::Boxes& boxes,
                           ScheduledRelease& scheduled)
    : settings_(settings),
      screen_(screen),
      timers_(timers),
      scheduled_(scheduled),
      cpu_limit_({screen.Check10, screen.Text10, tabs, screens::kTimeIntervalsTab},
                 {setting::kCpuTimeActive, setting::kTimeCpu}, settings, boxes) {
  using ui::Handler;
  timers_.timer4.OnTimer = Handler::To<&TimedRelease::Timer4_Timer>(*this);
  timers_.timer5.OnTimer = Handler::To<&TimedRelease::Timer5_Timer>(*this);
  screen_.Check3.OnClick = Handler::To<&TimedRelease::Check3_Click>(*this);
  screen_.Option4.OnClick = Handler::To<&TimedRelease::Option4_Click>(*this);
  screen_.Option5.OnClick = Handler::To<&TimedRelease::Option5_Click>(*this);
  screen_.lstTime.OnClick = Handler::To<&TimedRelease::lstTime_Click>(*this);
  screen_.List3.OnClick = Handler::To<&TimedRelease::List3_Click>(*this);
  screen_.Check10.OnClick = Handler::To<&TimedRelease::Check10_Click>(*this);
  screen_.Text10.OnKeyPress = base::Callback<base::Status(char&)>::To<&TimedRelease::Text10_KeyPress>(*this);
  screen_.Text10.OnValidate = base::Callback<base::Result<bool>()>::To<&TimedRelease::Text10_Validate>(*this);
}

void TimedRelease::FillLists() { AddItems(screen_.List3, ReleaseAmounts()); }

void TimedRelease::LoadAmount(double total_ram_mb) {
  const double proposed = DefaultAmount(screen_.List3, total_ram_mb);
  SelectNumber(screen_.List3, settings_.NumberOr(setting::kTimeQuondix, proposed));
}

void TimedRelease::LoadUnit() {
  const double stored = settings_.Get(setting::kTimeUnit);
  (stored == Unit::kMinutes.number ? screen_.Option4 : screen_.Option5).SetSelected(true);
}

void TimedRelease::LoadActive() {
  screen_.Check3.SetTicked(settings_.Get(setting::kTimeActive));
  RefreshActive();
}

void TimedRelease::RefreshActive() {
  timers_.timer4.SetEnabled(screen_.Check3.Ticked());
  screen_.lblNextRelease.SetVisible(screen_.Check3.Ticked());
}

const TimedRelease::Unit& TimedRelease::SelectedUnit() const {
  return screen_.Option4.Selected() ? Unit::kMinutes : Unit::kHours;
}

std::int32_t TimedRelease::IntervalMinutes() const {
  return static_cast<std::int32_t>(SelectedNumber(screen_.lstTime)) * SelectedUnit().minutes;
}

void TimedRelease::UpdateNextRelease() {
  screen_.lblNextRelease.SetCaption(base::Concat(
      {"Next Release of RAM is due in ", base::TextOf(IntervalMinutes() - timed_minute_count_), " minutes"}));
}

base::Status TimedRelease::Timer4_Timer() {
  if (scheduled_.IsHeldBack(cpu_limit_)) {
    timers_.timer5.SetEnabled(true);
    return base::kDone;
  }
  const base::Result<std::int16_t> count = base::AddInt16(timed_minute_count_, 1);
  if (!count.Ok()) return count.Error();
  timed_minute_count_ = count.Value();
  if (timed_minute_count_ >= IntervalMinutes()) {
    const base::Result<ReleaseOutcome> released = TimeMem();
    if (!released.Ok()) return released.Error();
    if (released.Value() == ReleaseOutcome::kUnloaded) return base::kDone;
  }
  UpdateNextRelease();
  return base::kDone;
}

/// Counts a retry that finds the processor idle enough as a minute, on purpose.
base::Status TimedRelease::Timer5_Timer() {
  timers_.timer5.SetEnabled(false);
  return Timer4_Timer();
}

base::Result<ReleaseOutcome> TimedRelease::TimeMem() {
  const base::Status drawn = scheduled_.PushBar();
  if (!drawn.Ok()) return drawn.Error();
  const ReleaseOutcome outcome = scheduled_.Run(screen_.List3, ScheduledRelease::WhenFree::kStop);
  if (outcome == ReleaseOutcome::kFinished) timed_minute_count_ = 0;
  return outcome;
}

base::Status TimedRelease::Check3_Click() {
  RefreshActive();
  settings_.Save(setting::kTimeActive, screen_.Check3.Value());
  timed_minute_count_ = 0;
  UpdateNextRelease();
  return base::kDone;
}

base::Status TimedRelease::Option4_Click() {
  ChooseUnit(Unit::kMinutes);
  return base::kDone;
}

base::Status TimedRelease::Option5_Click() {
  ChooseUnit(Unit::kHours);
  return base::kDone;
}

/// Selects the user's earlier choice for this unit, so the countdown continues.
void TimedRelease::ChooseUnit(const Unit& unit) {
  screen_.lstTime.Clear();
  AddItems(screen_.lstTime, unit.items);
  settings_.Save(setting::kTimeUnit, unit.number);
  const double item = settings_.Get(unit.interval);
  choosing_unit_ = true;
  SelectNumber(screen_.lstTime, item);
  choosing_unit_ = false;
  UpdateNextRelease();
}

base::Status TimedRelease::lstTime_Click() {
  settings_.Save(SelectedUnit().interval, screen_.lstTime.SelectedText());
  if (choosing_unit_) return base::kDone;
  timed_minute_count_ = 0;
  UpdateNextRelease();
  return base::kDone;
}

base::Status TimedRelease::List3_Click() {
  settings_.Save(setting::kTimeQuondix, SelectedNumber(screen_.List3));
  return base::kDone;
}

}  // namespace qdix::memory
