// Message boxes of the real system, owned by the main window.
#pragma once

#include <windows.h>

#include "os/dialogs.h"

namespace qdix::os::win32 {

class Win32Dialogs final : public Dialogs {
 public:
  int MessageBoxA(const std::string& text, const std::string& title, std::uint32_t flags) override;

  /// The window that boxes belong to and that is disabled while one is open; null for none.
  void SetOwner(HWND window) { owner_ = window; }

  /// The program ends: boxes that are open close unanswered and no further one opens.
  void Stop();

 private:
  [[nodiscard]] bool OwnerIsInView() const;

  HWND owner_ = nullptr;
  bool stopped_ = false;
};

}  // namespace qdix::os::win32
