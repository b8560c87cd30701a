// The release before a program starts: its share of the memory and its number of passes.
#pragma once

#include "memory/memory_monitor.h"
#include "memory/memory_release.h"
#include "registry/settings_store.h"
#include "screens/launcher_screen.h"
#include "ui/control_array.h"

namespace qdix::launcher {

class LaunchRelease {
 public:
  /// `warning_silencer` is the check box that suppresses the warning about low resources.
  LaunchRelease(memory::MemoryRelease& release, const memory::MemoryMonitor& monitor,
                registry::SettingsStore& settings, screens::LauncherScreen& screen,
                const ui::CheckBox& warning_silencer);

  /// Shows the stored share and number of passes in their controls.
  void LoadSettings();

  /// Frees the selected share of the memory, at most 250 MB of 1,040,000 bytes, once per pass. A failure ends
  /// the passes and is shown to the user.
  memory::ReleaseOutcome FreeMemoryBeforeLaunch();

  base::Status Option6_Click();
  base::Status Option7_Click();
  base::Status Option8_Click();
  base::Status Option9_Click();
  base::Status Slider_6_Click(int index);

 private:
  static constexpr int kMaxPasses = 5;

  /// Returns the part of the memory to free, or 0 if none is selected.
  [[nodiscard]] double Share() const;
  [[nodiscard]] int Passes() const;
  [[nodiscard]] bool WarningIsSilenced();

  memory::MemoryRelease& release_;
  const memory::MemoryMonitor& monitor_;
  registry::SettingsStore& settings_;
  screens::LauncherScreen& screen_;
  const ui::CheckBox& warning_silencer_;
  ui::ElementHandlers<kMaxPasses> passes_handlers_;
};

}  // namespace qdix::launcher
