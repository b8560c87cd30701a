// Implements `Clipboard` on Windows. Not part of the `System` that every program gets.
#pragma once

#include <windows.h>

#include "os/clipboard.h"

namespace qdix::os::win32 {

class Win32Clipboard final : public Clipboard {
 public:
  [[nodiscard]] bool SetClipboardData(const std::string& text) override;

  /// Sets the window that owns the clipboard content. The system accepts no text from a program without one.
  void SetOwner(HWND window) { owner_ = window; }

 private:
  HWND owner_ = nullptr;
};

}  // namespace qdix::os::win32
