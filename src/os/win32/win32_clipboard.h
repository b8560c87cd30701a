// The clipboard of the real system. Not part of the bundle that every program gets.
#pragma once

#include <windows.h>

#include "os/clipboard.h"

namespace qdix::os::win32 {

class Win32Clipboard final : public Clipboard {
 public:
  [[nodiscard]] bool SetClipboardData(const std::string& text) override;

  /// The window that owns what is on the clipboard; the system takes no text of a program without one.
  void SetOwner(HWND window) { owner_ = window; }

 private:
  HWND owner_ = nullptr;
};

}  // namespace qdix::os::win32
