// The "Time Intervals" tab: releases memory at an interval of minutes or hours, and counts down to the next
// release.
#pragma once

#include <cstdint>

#include "host/boxes.h"
#include "memory/cpu_limit.h"
#include "memory/scheduled_release.h"
#include "screens/main_window.h"
#include "screens/time_intervals_screen.h"
#include "ui/timer.h"

namespace qdix::memory {

class TimedRelease {
 public:
  struct Timers {
    /// Ticks once a minute.
    ui::Timer& timer4;
    /// Ticks once, some seconds after a busy processor delayed a release.
    ui::Timer& timer5;
  };

  TimedRelease(registry::SettingsStore& settings, screens::TimeIntervalsScreen& screen, ui::TabStrip& tabs,
               const Timers& timers, host::Boxes& boxes, ScheduledRelease& scheduled);

  /// Fills the list of amounts. Choosing the unit fills the list of intervals.
  void FillLists();

  // Load functions. The start-up sequence calls each of them at a fixed point.
  void LoadCpuLimit() { cpu_limit_.Load(); }
  void LoadAmount(double total_ram_mb);
  /// 1 is minutes; anything else is hours.
  void LoadUnit();
  /// Sets Timer4 and the countdown to match the check box, even if it stays clear.
  void LoadActive();

  /// Shows how many minutes are left, including zero and negative numbers.
  void UpdateNextRelease();

  /// Runs one timed release and restarts the countdown if the release finishes.
  base::Result<ReleaseOutcome> TimeMem();
  base::Status Timer4_Timer();
  base::Status Timer5_Timer();

  base::Status Check3_Click();
  base::Status Option4_Click();
  base::Status Option5_Click();
  base::Status lstTime_Click();
  base::Status List3_Click();
  base::Status Check10_Click() { return cpu_limit_.ActiveClicked(); }
  base::Status Text10_KeyPress(char& character) { return cpu_limit_.PercentKeyPressed(character); }
  base::Result<bool> Text10_Validate() { return cpu_limit_.ValidatePercent(); }

  /// True while a rejected limit opens its tab.
  [[nodiscard]] bool OpeningTab() const { return cpu_limit_.OpeningTab(); }

 private:
  struct Unit;
  [[nodiscard]] const Unit& SelectedUnit() const;
  [[nodiscard]] std::int32_t IntervalMinutes() const;
  void ChooseUnit(const Unit& unit);
  void RefreshActive();

  registry::SettingsStore& settings_;
  screens::TimeIntervalsScreen& screen_;
  Timers timers_;
  ScheduledRelease& scheduled_;
  CpuLimit cpu_limit_;
  /// Minutes counted since the last timed release, including retries that passed.
  std::int16_t timed_minute_count_ = 0;
  bool choosing_unit_ = false;
};

}  // namespace qdix::memory
