// The "Time Intervals" tab: releases memory every so many minutes or hours, and counts down to the next time.
#pragma once

#include <cstdint>

#include "memory/cpu_limit.h"
#include "memory/scheduled_release.h"
#include "os/system.h"
#include "screens/main_window.h"
#include "screens/time_intervals_screen.h"
#include "ui/timer.h"

namespace qdix::memory {

class TimedRelease {
 public:
  struct Timers {
    /// Ticks once a minute.
    ui::Timer& timer4;
    /// Ticks once, some seconds after a busy processor put a release off.
    ui::Timer& timer5;
  };

  TimedRelease(const os::System& system, shell::SettingsStore& settings, screens::TimeIntervalsScreen& screen,
               ui::TabStrip& tabs, const Timers& timers, const ui::Application& application,
               ScheduledRelease& scheduled);

  /// Fills the list of amounts; the list of intervals is filled with the unit.
  void FillLists();

  // The loads, each called at its place in the start-up order.
  void LoadCpuLimit() { cpu_limit_.Load(); }
  void LoadAmount(double total_ram_mb);
  /// 1 is minutes, anything else hours.
  void LoadUnit();
  /// Brings Timer4 and the countdown into their state also where the box stays clear.
  void LoadActive();

  /// Shows how many minutes are left; zero and less as they are.
  void UpdateNextRelease();

  /// One timed release; starts the countdown anew unless it failed.
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

  /// True while a refused limit opens the tab.
  [[nodiscard]] bool OpeningTab() const { return cpu_limit_.OpeningTab(); }

 private:
  struct Unit;
  [[nodiscard]] const Unit& SelectedUnit() const;
  [[nodiscard]] std::int32_t IntervalMinutes() const;
  void ChooseUnit(const Unit& unit);
  void ShowWhetherActive();

  shell::SettingsStore& settings_;
  screens::TimeIntervalsScreen& screen_;
  Timers timers_;
  ScheduledRelease& scheduled_;
  CpuLimit cpu_limit_;
  /// Ticks of a minute since the last timed release, and retries that passed.
  std::int16_t timed_minute_count_ = 0;
  bool choosing_unit_ = false;
};

}  // namespace qdix::memory
