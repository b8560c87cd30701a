#include "tests/e2e/driver/native_windows.h"

#include <algorithm>
#include <array>

// clang-format off
#include <shellapi.h>
// clang-format on

namespace qdix::e2e {

namespace {

constexpr UINT kAnswerTimeoutMs = 10000;
constexpr const char* kTaskbarClass = "Shell_TrayWnd";

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

std::vector<HWND> AllTopLevelWindows() {
  std::vector<HWND> windows;
  EnumWindows(&Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

NOTIFYICONDATAA IconOf(HWND owner, UINT number) {
  NOTIFYICONDATAA icon = {};
  icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
  icon.hWnd = owner;
  icon.uID = number;
  return icon;
}

}  // namespace

LRESULT Ask(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutA(window, message, wparam, lparam, SMTO_NORMAL, kAnswerTimeoutMs, &answer);
  return static_cast<LRESULT>(answer);
}

bool Answers(HWND window) {
  DWORD_PTR answer = 0;
  return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kAnswerTimeoutMs, &answer) != 0;
}

std::string ClassOf(HWND window) {
  std::array<char, 64> name{};
  GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

std::string TextOf(HWND window) {
  std::array<char, 2048> text{};
  Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return text.data();
}

std::vector<HWND> TopLevelWindows(DWORD process_id, const std::string& window_class) {
  std::vector<HWND> windows = AllTopLevelWindows();
  std::erase_if(windows, [&](HWND window) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return owner != process_id || (!window_class.empty() && ClassOf(window) != window_class);
  });
  return windows;
}

std::vector<HWND> WindowsInside(HWND window) {
  std::vector<HWND> windows;
  EnumChildWindows(window, &Collect, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

HWND Taskbar() { return FindWindowA(kTaskbarClass, nullptr); }

bool HasNotificationIcon(HWND owner, UINT number) {
  NOTIFYICONDATAA icon = IconOf(owner, number);
  // Changes nothing; fails if there is no such icon.
  return Shell_NotifyIconA(NIM_MODIFY, &icon) != FALSE;
}

bool TakeNotificationIcon(HWND owner, UINT number) {
  NOTIFYICONDATAA icon = IconOf(owner, number);
  return Shell_NotifyIconA(NIM_DELETE, &icon) != FALSE;
}

int TaskbarButtonCount() {
  const std::vector<HWND> buttons = WindowsInside(Taskbar());
  const auto shown = std::count_if(buttons.begin(), buttons.end(), [](HWND button) {
    return IsWindowVisible(button) != 0 && ClassOf(button) == "Button";
  });
  return static_cast<int>(shown) - 1;  // the first button opens the menu
}

}  // namespace qdix::e2e
