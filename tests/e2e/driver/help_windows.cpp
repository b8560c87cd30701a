#include "tests/e2e/driver/help_windows.h"

#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

std::vector<HWND> HelpWindows() {
  std::vector<HWND> windows;
  for (HWND window = FindWindowExA(nullptr, nullptr, nullptr, "Quondix Help"); window != nullptr;
       window = FindWindowExA(nullptr, window, nullptr, "Quondix Help")) {
    if (IsWindowVisible(window) != 0) windows.push_back(window);
  }
  return windows;
}

bool CloseHelpWindows() {
  for (const HWND window : HelpWindows()) PostMessageA(window, WM_CLOSE, 0, 0);
  return Eventually([] { return HelpWindows().empty(); });
}

}  // namespace qdix::e2e
