// The viewers of the help that are open, whoever started them.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

/// Their windows that are shown, the frontmost first.
[[nodiscard]] std::vector<HWND> HelpWindows();

/// The command line that the process of a window was started with; empty where it does not tell.
[[nodiscard]] std::string CommandLineOf(HWND window);

/// Asks all of them to close; false where one stays.
[[nodiscard]] bool CloseHelpWindows();

}  // namespace qdix::e2e
