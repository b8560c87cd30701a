// Files that the user drops on a window from another program.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qdix::os::win32 {

/// Registers a window for dropped files. It, or a window inside it, then gets WM_DROPFILES.
void AcceptDroppedFiles(HWND window);

/// Returns the paths of the files in a WM_DROPFILES message and frees its memory. `drop` is the message's
/// wParam. Leaves out paths that are too long for the system to open.
[[nodiscard]] std::vector<std::string> TakeDroppedPaths(WPARAM drop);

}  // namespace qdix::os::win32
