// The CPU limit of a release: a check box, and a text box with the load in percent at which releases wait.
#pragma once

#include <cstdint>

#include "host/boxes.h"
#include "registry/settings_store.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

namespace qdix::memory {

class CpuLimit {
 public:
  static constexpr double kLowestPercent = 5;
  static constexpr double kHighestPercent = 99;

  struct Controls {
    ui::CheckBox& active;
    ui::TextBox& percent;
    ui::TabStrip& tabs;
    /// The tab with both controls.
    int tab;
  };
  struct Settings {
    const registry::SwitchSetting& active;
    const registry::TextSetting& percent;
  };

  CpuLimit(const Controls& controls, const Settings& stored, registry::SettingsStore& settings,
           host::Boxes& boxes)
      : controls_(controls), stored_(stored), settings_(settings), boxes_(boxes) {}

  void Load();

  /// Saves the check box and enables or disables the percentage box to match.
  base::Status ActiveClicked();
  /// Accepts only digits and backspace; discards other keys.
  base::Status PercentKeyPressed(char& character);
  /// Saves a percentage from 5 to 99. Any other percentage opens the tab, shows a message, returns the focus
  /// to the box and gives false. At the end of the session it is dropped silently.
  base::Result<bool> ValidatePercent();

  /// True if the limit is active and the stored percentage is not above this load.
  [[nodiscard]] bool HoldsBack(std::int32_t load_percent) const;

  /// True while a rejected percentage opens its tab. Leaving another tab for it validates nothing.
  [[nodiscard]] bool OpeningTab() const { return opening_tab_; }

 private:
  void RefreshActive();

  Controls controls_;
  Settings stored_;
  registry::SettingsStore& settings_;
  host::Boxes& boxes_;
  bool opening_tab_ = false;
};

}  // namespace qdix::memory
