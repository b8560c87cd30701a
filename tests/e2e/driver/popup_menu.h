// The pop-up menu that another process has open.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>
#include <vector>

namespace qdix::e2e {

inline constexpr const char* kSeparator = "-";

struct MenuText {
  /// From top to bottom.
  std::vector<std::string> entries;
  /// The entries shown grey.
  std::vector<std::string> disabled_entries;
  /// The entry shown as the default.
  std::string default_entry;
};

/// Empty if the process does not answer.
[[nodiscard]] MenuText ReadMenu(HANDLE process, HWND menu_window);

}  // namespace qdix::e2e
