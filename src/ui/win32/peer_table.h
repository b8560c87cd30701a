// Owns the peers of a form and finds them by number, window or model.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class PeerTable {
 public:
  /// Adds the peer of the control with this number, which must have none yet.
  void Put(int number, std::unique_ptr<NativeControl> peer);

  /// Each returns null if there is no such peer. Windows of other programs and inner windows of controls have
  /// none; controls on a page that was never open have none yet.
  [[nodiscard]] NativeControl* ByNumber(int number) const;
  [[nodiscard]] NativeControl* ByWindow(HWND window) const;
  [[nodiscard]] NativeControl* ByModel(const Control& model) const;

  /// Indexed from kFirstControlNumber; null for a control that has no peer yet.
  [[nodiscard]] const std::vector<std::unique_ptr<NativeControl>>& All() const { return peers_; }

 private:
  std::vector<std::unique_ptr<NativeControl>> peers_;
};

}  // namespace qdix::ui::win32
