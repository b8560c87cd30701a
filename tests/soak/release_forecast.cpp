#include "tests/soak/release_forecast.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "base/numbers.h"

namespace qdix::tests {

namespace {

constexpr std::int64_t kRetryMs = 10000;
constexpr int kReadingsInAverage = 8;
/// The load, in percent, that the readings before the first one count as.
constexpr std::uint32_t kEarlierReading = 4;
constexpr double kBusyPercent = 80;
constexpr double kOneBlockMb = 250;

double Chosen(const ui::ListControl& list) { return base::ParseLeadingNumber(list.SelectedText()); }

}  // namespace

ReleaseForecast::ReleaseForecast(ProgramRig& rig, const Conditions& conditions, int startup_delay_s)
    : rig_(rig),
      program_(*rig.program),
      conditions_(conditions),
      display_(program_.MainWindow().Timer1, rig.timers),
      check_(program_.MainWindow().Timer2, rig.timers),
      startup_(program_.MainWindow().Timer3, rig.timers),
      minute_(program_.MainWindow().Timer4, rig.timers),
      retry_(program_.MainWindow().Timer5, rig.timers),
      check_interval_ms_(static_cast<std::int64_t>(std::min(CheckSeconds(), 60.0) * 1000)),
      readings_(kReadingsInAverage, kEarlierReading) {
  readings_.back() = conditions.load_percent;
  Bind();
  display_.ExpectTickAfter(kRefreshMs);
  check_.ExpectTickAfter(check_interval_ms_);
  startup_.ExpectTickAfter(std::int64_t{1000} * startup_delay_s);
  minute_.ExpectTickAfter(kMinuteMs);
}

void ReleaseForecast::Bind() {
  display_.After = [this] { TakeReading(); };
  check_.Before = [this] { BeforeCheck(); };
  check_.After = [this] { AfterCheck(); };
  startup_.Before = [this] {
    ++ticks_;
    ExpectRelease(Amounts::kStartup);
    startup_.ExpectNoTick();
  };
  minute_.Before = [this] { BeforeMinute(); };
  minute_.After = [this] { AfterMinute(); };
  retry_.Before = [this] {
    retry_pending_ = false;
    retry_.ExpectNoTick();
    BeforeMinute();
  };
  retry_.After = minute_.After;
}

double ReleaseForecast::CheckSeconds() const { return Chosen(program_.AutomaticScreen().List2); }

double ReleaseForecast::IntervalMinutes() const {
  const auto& tab = program_.TimeIntervalsScreen();
  return Chosen(tab.lstTime) * (tab.Option4.Selected() ? 1 : 60);
}

void ReleaseForecast::TakeReading() {
  ++ticks_;
  readings_.push_front(conditions_.load_percent);
  readings_.pop_back();
  const int readings_per_update = program_.StartupScreen().Slider7.Value();
  position_in_update_ = position_in_update_ < readings_per_update ? position_in_update_ + 1 : 1;
  if (position_in_update_ != 1) ++keys_left_open_;
}

int ReleaseForecast::TakeKeysLeftOpen() { return std::exchange(keys_left_open_, 0); }

bool ReleaseForecast::IsHeldBack(const ui::CheckBox& gate) const {
  const double sum = std::accumulate(readings_.begin(), readings_.end(), 0.0);
  return gate.Ticked() && std::floor(sum / kReadingsInAverage) >= kBusyPercent;
}

bool ReleaseForecast::ExpectRelease(Amounts kind) {
  const ui::ListControl* amounts = &program_.QuondixScreen().List1;
  if (kind == Amounts::kAutomatic) amounts = &program_.AutomaticScreen().List4;
  if (kind == Amounts::kTimed) amounts = &program_.TimeIntervalsScreen().List3;
  if (kind == Amounts::kStartup) amounts = &program_.StartupScreen().Combo1;
  const double amount_mb = Chosen(*amounts);
  const bool looks = kind == Amounts::kAutomatic || kind == Amounts::kTimed;
  if (looks && amount_mb < conditions_.available_mb) return true;
  if (conditions_.refuses_blocks) {
    if (kind == Amounts::kManual || !program_.StartupScreen().Check4.Ticked()) ++warnings_;
    return false;
  }
  ++releases_;
  const auto passes =
      static_cast<std::int64_t>(base::ParseLeadingNumber(program_.QuondixScreen().Text1.Text()));
  blocks_ += passes * (amount_mb > kOneBlockMb ? 2 : 1);
  return true;
}

void ReleaseForecast::ExpectManualRelease() { ExpectRelease(Amounts::kManual); }

void ReleaseForecast::BeforeCheck() {
  ++ticks_;
  checked_ = false;
  automatic_finishes_ = false;
  if (conditions_.companion_works) return;
  if (CheckSeconds() > 60 && ++minutes_unchecked_ != CheckSeconds() / 60) return;
  checked_ = CheckSeconds() > 60;
  const double threshold_mb = base::ParseLeadingNumber(program_.AutomaticScreen().Text2.Text());
  if (threshold_mb <= conditions_.available_mb || IsHeldBack(program_.AutomaticScreen().Check9)) return;
  automatic_finishes_ = ExpectRelease(Amounts::kAutomatic);
}

void ReleaseForecast::AfterCheck() {
  if (checked_) minutes_unchecked_ = 0;
  if (automatic_finishes_) ++automatic_count_;
}

void ReleaseForecast::BeforeMinute() {
  ++ticks_;
  timed_finishes_.push_back(false);
  if (IsHeldBack(program_.TimeIntervalsScreen().Check10)) {
    if (!std::exchange(retry_pending_, true)) retry_.ExpectTickAfter(kRetryMs);
    return;
  }
  if (++minutes_ >= IntervalMinutes()) timed_finishes_.back() = ExpectRelease(Amounts::kTimed);
}

void ReleaseForecast::AfterMinute() {
  if (timed_finishes_.back()) minutes_ = 0;
  timed_finishes_.pop_back();
}

void ReleaseForecast::Follow(WatchedTimer& timer, bool& runs, bool runs_now, std::int64_t interval_ms) {
  if (std::exchange(runs, runs_now) == runs_now) return;
  if (runs_now) {
    timer.ExpectTickAfter(interval_ms);
  } else {
    timer.ExpectNoTick();
  }
}

void ReleaseForecast::WindowActivated() { Follow(display_, display_runs_, true, kRefreshMs); }

void ReleaseForecast::FollowControls() {
  const bool is_paused = program_.QuondixScreen().Command3.Caption() == "Resume Activity";
  const auto interval_ms = static_cast<std::int64_t>(std::min(CheckSeconds(), 60.0) * 1000);
  const bool is_new = std::exchange(check_interval_ms_, interval_ms) != interval_ms;
  if (is_new && check_runs_) check_.ExpectTickAfter(interval_ms);
  if (std::exchange(is_paused_, is_paused) != is_paused) {
    Follow(display_, display_runs_, !is_paused, kRefreshMs);
  }
  Follow(check_, check_runs_, !is_paused && program_.AutomaticScreen().Check1.Ticked(), interval_ms);
  Follow(minute_, minute_runs_, !is_paused && program_.TimeIntervalsScreen().Check3.Ticked(), kMinuteMs);
}

std::string ReleaseForecast::CounterText() const {
  return "released RAM " + std::to_string(automatic_count_) + " times since Q-DIX was started on ";
}

std::string ReleaseForecast::NextReleaseText() const {
  return "Next Release of RAM is due in " + std::to_string(static_cast<int>(IntervalMinutes()) - minutes_) +
         " minutes";
}

void ReleaseForecast::ExpectNothingLate() const {
  for (const WatchedTimer* timer : {&display_, &check_, &startup_, &minute_, &retry_}) timer->ExpectNotLate();
}

}  // namespace qdix::tests
