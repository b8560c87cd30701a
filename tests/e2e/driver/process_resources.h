// Other resources of a process: windows, drawing objects and handles, counted from outside.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

struct ProcessResources {
  /// Windows at any depth.
  int windows = 0;
  /// Pens, brushes, fonts, bitmaps, regions, device contexts.
  int drawing_objects = 0;
  /// Handles of files, keys, events, threads and the like.
  int handles = 0;
};

/// Returns -1 for a kind that could not be counted.
[[nodiscard]] ProcessResources CountResources(HANDLE process, DWORD process_id);

}  // namespace qdix::e2e
