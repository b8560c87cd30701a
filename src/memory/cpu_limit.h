// The CPU gate of a release: a check box and a box with the percentage from which on the release waits.
#pragma once

#include <cstdint>

#include "os/dialogs.h"
#include "shell/settings_store.h"
#include "ui/application.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"
#include "ui/text_box.h"

namespace qdix::memory {

class CpuLimit {
 public:
  static constexpr double kDefaultPercent = 80;
  static constexpr double kLowestPercent = 5;
  static constexpr double kHighestPercent = 99;

  struct Controls {
    ui::CheckBox& active;
    ui::TextBox& percent;
    ui::TabStrip& tabs;
    /// The tab that the two stand on.
    int tab;
  };
  struct Keys {
    const char* active;
    const char* percent;
  };

  CpuLimit(const Controls& controls, const Keys& keys, shell::SettingsStore& settings, os::Dialogs& dialogs,
           const ui::Application& application)
      : controls_(controls), keys_(keys), settings_(settings), dialogs_(dialogs), application_(application) {}

  void Load();

  /// Saves the check box and brings the box with the percentage into its state.
  base::Status ActiveClicked();
  /// Swallows every key but the digits and backspace.
  base::Status PercentKeyPressed(char& character);
  /// Saves a percentage of 5 to 99. Any other opens the tab, tells the user, puts the focus back and answers
  /// false; at the end of the session it is dropped without a word.
  base::Result<bool> ValidatePercent();

  /// True where the box is ticked and the stored percentage is not above this load.
  [[nodiscard]] bool HoldsBack(std::int32_t load_percent) const;

  /// True while a refused percentage opens its tab: leaving another tab that way validates nothing.
  [[nodiscard]] bool OpeningTab() const { return opening_tab_; }

 private:
  void ShowWhetherActive();

  Controls controls_;
  Keys keys_;
  shell::SettingsStore& settings_;
  os::Dialogs& dialogs_;
  const ui::Application& application_;
  bool opening_tab_ = false;
};

}  // namespace qdix::memory
