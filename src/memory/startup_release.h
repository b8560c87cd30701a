// The release after start-up: its settings and its delay.
#pragma once

#include <cstdint>

#include "memory/scheduled_release.h"
#include "registry/settings_store.h"
#include "screens/startup_screen.h"
#include "ui/timer.h"

namespace qdix::memory {

class StartupRelease {
 public:
  StartupRelease(registry::SettingsStore& settings, screens::StartupScreen& screen, ui::Timer& timer3,
                 ScheduledRelease& scheduled);

  /// Fills the list of amounts but selects nothing.
  void FillLists();

  // Load functions. The start-up sequence calls each of them at a fixed point.
  void LoadWarnings();
  void LoadAmount(double total_ram_mb);
  /// Shows the stored delay and starts the countdown.
  void LoadAndArmDelay();

  /// Runs the release after start-up. Runs every pass, no matter how much memory is free.
  void StartupMem();
  base::Status Timer3_Timer();

  /// Saves the amount chosen for the start-up release, or 0 if none is chosen.
  base::Status Combo1_LostFocus();
  base::Status Text3_Change();
  base::Status VScroll3_Change();
  base::Status Check4_Click();

  /// Returns the seconds of delay left beyond what Timer3 is counting now. 0 for a delay of up to a minute.
  [[nodiscard]] std::int16_t StartupDelayLeft() const { return startup_delay_left_; }

 private:
  registry::SettingsStore& settings_;
  screens::StartupScreen& screen_;
  ui::Timer& timer3_;
  ScheduledRelease& scheduled_;
  std::int16_t startup_delay_left_ = 0;
};

}  // namespace qdix::memory
