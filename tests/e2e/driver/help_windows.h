// The viewers of the help that are open, whoever started them.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <vector>

namespace qdix::e2e {

/// Their windows that are shown, the frontmost first.
[[nodiscard]] std::vector<HWND> HelpWindows();

/// Asks all of them to close; false where one stays.
[[nodiscard]] bool CloseHelpWindows();

}  // namespace qdix::e2e
