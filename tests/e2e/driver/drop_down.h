// A drop-down list of another process under the user's hand.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

[[nodiscard]] int RowCount(HWND list);
[[nodiscard]] int SelectedRow(HWND list);
/// -1 where there is no such row.
[[nodiscard]] int RowWithText(HWND list, const std::string& text);

/// Goes to a row with the arrow keys, one row after the other, the list staying closed. The list must have
/// the keyboard. False where the row does not become the selected one.
[[nodiscard]] bool ChooseByArrows(HWND list, int row);

/// Opens the list with a click, clicks on a row, which must be in sight then, and waits until the list is
/// closed with this row selected; false when it is not.
[[nodiscard]] bool ChooseByPointer(HWND list, int row);

}  // namespace qdix::e2e
