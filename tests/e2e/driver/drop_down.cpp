#include "tests/e2e/driver/drop_down.h"

#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

namespace {

constexpr const char* kOpenListClass = "ComboLBox";

/// Returns the window with the rows of the open list, or null if none is open.
HWND OpenRows(HWND list) {
  DWORD process_id = 0;
  GetWindowThreadProcessId(list, &process_id);
  for (const HWND rows : TopLevelWindows(process_id, kOpenListClass)) {
    if (IsWindowVisible(rows) != 0) return rows;
  }
  return nullptr;
}

bool ArrowMoves(HWND list, int key) {
  const int before = SelectedRow(list);
  PressKey(key);
  return Eventually([&] { return SelectedRow(list) != before; });
}

}  // namespace

int RowCount(HWND list) { return static_cast<int>(Ask(list, CB_GETCOUNT)); }

int SelectedRow(HWND list) { return static_cast<int>(Ask(list, CB_GETCURSEL)); }

int RowWithText(HWND list, const std::string& text) {
  return static_cast<int>(
      Ask(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str())));
}

bool ChooseByArrows(HWND list, int row) {
  while (SelectedRow(list) != row) {
    if (!ArrowMoves(list, SelectedRow(list) < row ? VK_DOWN : VK_UP)) return false;
  }
  return true;
}

bool ChooseByPointer(HWND list, int row) {
  if (!Click(list) || !Eventually([list] { return OpenRows(list) != nullptr; })) return false;
  const HWND rows = OpenRows(list);
  const LRESULT first = Ask(rows, LB_GETTOPINDEX);
  const LRESULT height_px = Ask(rows, LB_GETITEMHEIGHT);
  const LONG middle_px = static_cast<LONG>((row - first) * height_px + height_px / 2);
  if (!PressAt(rows, {static_cast<LONG>(height_px), middle_px}, Press::kLeft)) return false;
  return Eventually([&] { return OpenRows(list) == nullptr && SelectedRow(list) == row; });
}

}  // namespace qdix::e2e
