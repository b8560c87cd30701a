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
  // Closes again at each check: a viewer that is still starting shows its window only later.
  return Eventually([] {
    const std::vector<HWND> windows = HelpWindows();
    for (const HWND window : windows) PostMessageA(window, WM_CLOSE, 0, 0);
    return windows.empty();
  });
}

}  // namespace qdix::e2e
