// The "Automatic" tab: checks the available memory every few seconds, releases memory if it is below a
// threshold, and counts these releases.
#pragma once

#include <cstdint>

#include "host/boxes.h"
#include "memory/cpu_limit.h"
#include "memory/scheduled_release.h"
#include "os/system.h"
#include "screens/automatic_screen.h"
#include "screens/main_window.h"
#include "ui/timer.h"

namespace qdix::memory {

class AutomaticRelease {
 public:
  AutomaticRelease(const os::System& system, registry::SettingsStore& settings,
                   screens::AutomaticScreen& screen, ui::TabStrip& tabs, ui::Timer& timer2,
                   host::Boxes& boxes, ScheduledRelease& scheduled);

  /// Fills the lists but selects nothing.
  void FillLists();

  // Load functions. The start-up sequence calls each of them at a fixed point.
  void LoadCpuLimit() { cpu_limit_.Load(); }
  /// Stores a new count of 0 releases, starting now.
  void StartCounter();
  /// Shows the stored count and date. Replaces a missing or unreadable date with the present one and stores
  /// it.
  void LoadCounter();
  void LoadThreshold(double total_ram_mb);
  void LoadAmount(double total_ram_mb);
  /// Ticking Check1 enables Timer2 with the interval that List2 has set so far.
  void LoadActive();
  void LoadInterval();

  /// Runs one automatic release unless the processor is busy. Also counts releases that found enough free
  /// memory.
  base::Status AutoMem();
  base::Status Timer2_Timer();

  base::Status Check1_Click();
  base::Status List2_Click();
  base::Status List4_Click();
  base::Status Text2_Change();
  base::Status VScroll2_Change();
  base::Status Check9_Click() { return cpu_limit_.ActiveClicked(); }
  base::Status Text9_KeyPress(char& character) { return cpu_limit_.PercentKeyPressed(character); }
  base::Result<bool> Text9_Validate() { return cpu_limit_.ValidatePercent(); }
  base::Status Command7_Click();

  /// True while a rejected limit opens its tab.
  [[nodiscard]] bool OpeningTab() const { return cpu_limit_.OpeningTab(); }
  /// Timer2 ticks per check: 1, or the interval in minutes.
  [[nodiscard]] double AutoCheckTicks() const { return auto_check_ticks_; }

 private:
  base::Status CheckMemory();
  void ShowCounter(std::string_view beginning);

  const os::System& system_;
  registry::SettingsStore& settings_;
  screens::AutomaticScreen& screen_;
  ui::Timer& timer2_;
  ScheduledRelease& scheduled_;
  CpuLimit cpu_limit_;
  double counter_start_date_ = 0;
  std::int32_t auto_release_count_ = 0;
  double auto_check_ticks_ = 1;
  /// Ticks since the last check. Used only if a check takes more than one.
  std::int16_t auto_tick_count_ = 0;
};

}  // namespace qdix::memory
