// Files that the user drops on a window from another program.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qdix::os::win32 {

/// From now on the window, or one inside it, gets WM_DROPFILES.
void AcceptDroppedFiles(HWND window);

/// The paths of the files of a WM_DROPFILES, whose memory is freed; `drop` is its first word. A path that is
/// longer than the system opens is left out.
[[nodiscard]] std::vector<std::string> TakeDroppedPaths(WPARAM drop);

}  // namespace qdix::os::win32
