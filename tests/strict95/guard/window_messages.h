// Shows rules the messages that the program's windows receive, from other programs too.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <functional>

#include "tests/strict95/guard/call.h"

namespace qdix::strict95 {

using MessageWatch = std::function<void(HWND window, UINT message, LPARAM lparam)>;

/// Calls the watch for every sent message before its window receives it, and for every posted message and
/// input when the program takes it from the queue. Begins with the program's first window.
void WatchWindowMessages(Watches& watches, MessageWatch watch);

}  // namespace qdix::strict95
