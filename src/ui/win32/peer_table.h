// The peers of a form by number, by window and by model. Owns them.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class PeerTable {
 public:
  /// In the order of the controls' numbers, the first one first.
  void Add(std::unique_ptr<NativeControl> peer);

  /// Each is null where there is no such peer; windows of other programs, and inner windows of controls, have
  /// none.
  [[nodiscard]] NativeControl* ByNumber(int number) const;
  [[nodiscard]] NativeControl* ByWindow(HWND window) const;
  [[nodiscard]] NativeControl* ByModel(const Control& model) const;

  [[nodiscard]] const std::vector<std::unique_ptr<NativeControl>>& All() const { return peers_; }

 private:
  std::vector<std::unique_ptr<NativeControl>> peers_;
};

}  // namespace qdix::ui::win32
