// Hides, minimises and pauses the program, and sets how it appears at the next start.
#pragma once

#include "registry/settings_store.h"
#include "screens/automatic_screen.h"
#include "screens/main_window.h"
#include "screens/quondix_screen.h"
#include "screens/startup_screen.h"
#include "screens/time_intervals_screen.h"

namespace qdix::app {

class WindowModes {
 public:
  struct Screens {
    screens::MainWindow& window;
    screens::QuondixScreen& quondix;
    screens::AutomaticScreen& automatic;
    screens::TimeIntervalsScreen& time_intervals;
    screens::StartupScreen& startup;
  };

  WindowModes(registry::SettingsStore& settings, const Screens& screens);

  /// Selects the option of the stored display mode and minimises or hides the window before it is shown. An
  /// unknown mode selects none.
  void LoadStartDisplay();
  /// True if the window must not be shown after the load.
  [[nodiscard]] bool StartsHidden() const { return starts_hidden_; }

  base::Status Command2_Click();
  base::Status Command3_Click();
  base::Status Command4_Click();
  base::Status Option1_Click();
  base::Status Option2_Click();
  base::Status Option3_Click();

 private:
  void Pause();
  void Resume();
  void SaveStartDisplay(double mode);

  registry::SettingsStore& settings_;
  Screens screens_;
  bool starts_hidden_ = false;
};

}  // namespace qdix::app
