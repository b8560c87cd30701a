// Windows of other processes: found by process, class and number, asked with a limit in time.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

/// Sends a message to a window of any process and returns its answer; 0 when it does not answer in time,
/// since a window that hangs must fail a test and not hang it.
LRESULT Ask(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);

/// True where the window takes messages within the limit of Ask().
[[nodiscard]] bool Answers(HWND window);

[[nodiscard]] std::string ClassOf(HWND window);
[[nodiscard]] std::string TextOf(HWND window);

/// The top-level windows of this process, front to back; with a class only those of it.
[[nodiscard]] std::vector<HWND> TopLevelWindows(DWORD process_id, const std::string& window_class = {});

/// All windows inside of this one, at any depth.
[[nodiscard]] std::vector<HWND> WindowsInside(HWND window);

[[nodiscard]] HWND Taskbar();
/// True while the notification area has the icon of this owner and number, also when the owner is gone and
/// has left it behind.
[[nodiscard]] bool HasNotificationIcon(HWND owner, UINT number);
/// Takes an icon away behind its owner's back; false where there was none. Wine lets any process do so.
[[nodiscard]] bool TakeNotificationIcon(HWND owner, UINT number);
/// Buttons of programs that the taskbar shows.
[[nodiscard]] int TaskbarButtonCount();

}  // namespace qdix::e2e
