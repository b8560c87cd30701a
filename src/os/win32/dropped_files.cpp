#include "os/win32/dropped_files.h"

// shellapi.h needs windows.h first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
// clang-format on

#include <array>

#include "runtime/float_control.h"

namespace qdix::os::win32 {

void AcceptDroppedFiles(HWND window) { DragAcceptFiles(window, TRUE); }

std::vector<std::string> TakeDroppedPaths(WPARAM drop) {
  const runtime::FloatingPointKeeper keeper;
  constexpr UINT kAskForCount = 0xFFFFFFFFU;
  auto* const dropped = reinterpret_cast<HDROP>(drop);
  std::vector<std::string> paths;
  const UINT count = DragQueryFileA(dropped, kAskForCount, nullptr, 0);
  for (UINT index = 0; index < count; ++index) {
    // Without a buffer, the call returns the length of the whole path.
    const UINT length = DragQueryFileA(dropped, index, nullptr, 0);
    std::array<char, MAX_PATH> path{};
    if (length == 0 || length >= path.size()) continue;
    DragQueryFileA(dropped, index, path.data(), static_cast<UINT>(path.size()));
    paths.emplace_back(path.data());
  }
  DragFinish(dropped);
  return paths;
}

}  // namespace qdix::os::win32
