// Windows of other processes: found by process, class and number, queried with a time limit.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

/// Sends a message to a window of any process and returns its answer. Returns 0 if the window does not answer
/// in time: a window that hangs must fail a test, not hang it.
LRESULT Ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);

/// True if the window handles messages within the limit of Ask().
[[nodiscard]] bool Answers(HWND window);

[[nodiscard]] std::string ClassOf(HWND window);
[[nodiscard]] std::string TextOf(HWND window);

/// Returns the top-level windows of this process, front to back; given a class, only those of that class.
[[nodiscard]] std::vector<HWND> TopLevelWindows(DWORD process_id, const std::string& window_class = {});

/// Returns all windows inside this one, at any depth.
[[nodiscard]] std::vector<HWND> WindowsInside(HWND window);

[[nodiscard]] HWND Taskbar();
/// True while the notification area has the icon of this owner and number, also if the owner has gone and
/// left it behind.
[[nodiscard]] bool HasNotificationIcon(HWND owner, UINT number);
/// Removes an icon without its owner's knowledge; returns false if there was none. Wine lets any process do
/// this.
[[nodiscard]] bool TakeNotificationIcon(HWND owner, UINT number);
/// Returns the number of program buttons on the taskbar.
[[nodiscard]] int TaskbarButtonCount();

}  // namespace qdix::e2e
