// Operates a drop-down list of another process as the user does.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

[[nodiscard]] int RowCount(HWND list);
[[nodiscard]] int SelectedRow(HWND list);
/// Returns -1 if there is no such row.
[[nodiscard]] int RowWithText(HWND list, const std::string& text);

/// Goes to a row with the arrow keys, one row at a time, with the list closed. The list must have the
/// keyboard. Returns false if the row does not become the selected one.
[[nodiscard]] bool ChooseByArrows(HWND list, int row);

/// Opens the list with a click, clicks a row, which must be visible then, and waits until the list has closed
/// with this row selected. Returns false otherwise.
[[nodiscard]] bool ChooseByPointer(HWND list, int row);

}  // namespace qdix::e2e
