#include "os/win32/win32_windows.h"

#include <windows.h>

namespace qdix::os::win32 {

namespace {

static_assert(kGwHwndPrev == GW_HWNDPREV && kSwShowNa == SW_SHOWNA && kWmClose == WM_CLOSE);

HWND Native(WindowHandle window) { return reinterpret_cast<HWND>(window); }

}  // namespace

WindowHandle Win32Windows::FindWindowA(const char* window_class, const char* title) {
  return reinterpret_cast<WindowHandle>(::FindWindowA(window_class, title));
}

WindowHandle Win32Windows::FindWindowExA(WindowHandle after, const char* title) {
  return reinterpret_cast<WindowHandle>(::FindWindowExA(nullptr, Native(after), nullptr, title));
}

WindowHandle Win32Windows::GetWindow(WindowHandle window, std::uint32_t relation) {
  return reinterpret_cast<WindowHandle>(::GetWindow(Native(window), relation));
}

std::uint32_t Win32Windows::GetWindowThreadProcessId(WindowHandle window) {
  return ::GetWindowThreadProcessId(Native(window), nullptr);
}

bool Win32Windows::OpenIcon(WindowHandle window) { return ::OpenIcon(Native(window)) != FALSE; }

bool Win32Windows::ShowWindow(WindowHandle window, int way) {
  return ::ShowWindow(Native(window), way) != FALSE;
}

bool Win32Windows::SetForegroundWindow(WindowHandle window) {
  return ::SetForegroundWindow(Native(window)) != FALSE;
}

bool Win32Windows::PostMessageA(WindowHandle window, std::uint32_t message) {
  return ::PostMessageA(Native(window), message, 0, 0) != FALSE;
}

}  // namespace qdix::os::win32
