// Keys that belong to the whole form: the switching of tabs, Enter for the default button, Esc for the cancel
// button.
#pragma once

#include <windows.h>

#include "ui/form.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"

namespace qdix::ui::win32 {

class FormKeys {
 public:
  explicit FormKeys(Form& form) : form_(form) {}

  /// Ctrl+Tab, Ctrl+Page Down: next tab; with Shift, or Ctrl+Page Up: the one before.
  [[nodiscard]] static bool IsTabSwitch(WPARAM key);
  void SwitchTab(WPARAM key);
  /// What a control adds to its answer to WM_GETDLGCODE, so that these keys come to it and are not taken for
  /// a plain Tab. `message` as the dialog manager passes it: the address of the key message, or 0.
  [[nodiscard]] static LRESULT DialogCode(LPARAM message);

  /// The first button of this role that a hand can reach, or null.
  [[nodiscard]] Button* ReachableButton(ButtonRole role) const;

 private:
  [[nodiscard]] TabStrip* FirstTabStrip() const;

  Form& form_;
};

}  // namespace qdix::ui::win32
