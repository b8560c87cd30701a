// Implements `Windows` with the Windows API. Only forwards.
#pragma once

#include "os/top_level_windows.h"

namespace qdix::os::win32 {

class Win32Windows final : public Windows {
 public:
  [[nodiscard]] WindowHandle FindWindowA(const char* window_class, const char* title) override;
  [[nodiscard]] WindowHandle FindWindowExA(WindowHandle after, const char* title) override;
  [[nodiscard]] WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) override;
  std::uint32_t GetWindowThreadProcessId(WindowHandle window) override;
  bool OpenIcon(WindowHandle window) override;
  bool ShowWindow(WindowHandle window, int way) override;
  bool SetForegroundWindow(WindowHandle window) override;
  bool PostMessageA(WindowHandle window, std::uint32_t message) override;
};

}  // namespace qdix::os::win32
