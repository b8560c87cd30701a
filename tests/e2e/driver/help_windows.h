// The open help viewers, no matter who started them.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <vector>

namespace qdix::e2e {

/// Returns their visible windows, the frontmost first.
[[nodiscard]] std::vector<HWND> HelpWindows();

/// Asks all of them to close; returns false if one stays open.
[[nodiscard]] bool CloseHelpWindows();

}  // namespace qdix::e2e
