// Implements `Dialogs` on Windows. The main window owns the message boxes.
#pragma once

#include <windows.h>

#include "os/dialogs.h"

namespace qdix::os::win32 {

class Win32Dialogs final : public Dialogs {
 public:
  int MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) override;

  /// Sets the window that owns message boxes and is disabled while one is open; null for none.
  void SetOwner(HWND window) { owner_ = window; }

  /// Closes open boxes without an answer and opens no further ones. For the end of the program.
  void Stop();

 private:
  [[nodiscard]] bool OwnerIsInView() const;

  HWND owner_ = nullptr;
  bool stopped_ = false;
};

}  // namespace qdix::os::win32
