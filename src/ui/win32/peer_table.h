// The peers of a form by number, by window and by model. Owns them.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class PeerTable {
 public:
  /// The number is that of its control, which has no peer yet.
  void Put(int number, std::unique_ptr<NativeControl> peer);

  /// Each is null where there is no such peer: windows of other programs and inner windows of controls have
  /// none, and what stands on a page that was never open has none yet.
  [[nodiscard]] NativeControl* ByNumber(int number) const;
  [[nodiscard]] NativeControl* ByWindow(HWND window) const;
  [[nodiscard]] NativeControl* ByModel(const Control& model) const;

  /// By number; null for what has no peer yet.
  [[nodiscard]] const std::vector<std::unique_ptr<NativeControl>>& All() const { return peers_; }

 private:
  std::vector<std::unique_ptr<NativeControl>> peers_;
};

}  // namespace qdix::ui::win32
