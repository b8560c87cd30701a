// Keys of the whole form: switching tabs, Enter for the default button, Esc for the cancel button.
#pragma once

#include <windows.h>

#include "ui/form.h"
#include "ui/simple_controls.h"
#include "ui/tab_strip.h"

namespace qdix::ui::win32 {

class FormKeys {
 public:
  explicit FormKeys(Form& form) : form_(form) {}

  /// True for Ctrl+Tab and Ctrl+Page Down (next tab), Ctrl+Shift+Tab and Ctrl+Page Up (previous tab).
  [[nodiscard]] static bool IsTabSwitch(WPARAM key);
  void SwitchTab(WPARAM key);
  /// Returns what a control adds to its answer to WM_GETDLGCODE to receive these keys; otherwise the dialog
  /// manager takes them for a plain Tab. `message` is the address of the key message, as the dialog manager
  /// passes it, or 0.
  [[nodiscard]] static LRESULT DialogCode(LPARAM message);

  /// Returns the first reachable button of this role, or null.
  [[nodiscard]] Button* ReachableButton(ButtonRole role) const;

 private:
  [[nodiscard]] TabStrip* FirstTabStrip() const;

  Form& form_;
};

}  // namespace qdix::ui::win32
