// The release after start-up: its settings and the delay before it.
#pragma once

#include <cstdint>

#include "memory/scheduled_release.h"
#include "screens/startup_screen.h"
#include "shell/settings_store.h"
#include "ui/timer.h"

namespace qdix::memory {

class StartupRelease {
 public:
  StartupRelease(shell::SettingsStore& settings, screens::StartupScreen& screen, ui::Timer& timer3,
                 ScheduledRelease& scheduled);

  /// Fills the list of amounts; selects nothing.
  void FillLists();

  // The loads, each called at its place in the start-up order.
  void LoadWarnings();
  void LoadAmount(double total_ram_mb);
  /// Shows the stored delay and starts counting it.
  void LoadAndArmDelay();

  /// The release after start-up. Every pass runs, however much memory is free.
  void StartupMem();
  base::Status Timer3_Timer();

  /// Saves the amount chosen for the start-up release; 0 where none is.
  base::Status Combo1_LostFocus();
  base::Status Text3_Change();
  base::Status VScroll3_Change();
  base::Status Check4_Click();

  /// Seconds of delay that are left beyond what Timer3 counts now; 0 for a delay of up to a minute.
  [[nodiscard]] std::int16_t StartupDelayLeft() const { return startup_delay_left_; }

 private:
  shell::SettingsStore& settings_;
  screens::StartupScreen& screen_;
  ui::Timer& timer3_;
  ScheduledRelease& scheduled_;
  std::int16_t startup_delay_left_ = 0;
};

}  // namespace qdix::memory
