#include "tests/e2e/driver/notification_area.h"

#include "tests/e2e/driver/native_windows.h"

namespace qdix::e2e {

namespace {

constexpr const char* kTipClass = "tooltips_class32";

/// Returns the square of the rightmost icon, which is as wide as the taskbar is high, in pixels of the
/// taskbar.
RECT IconSquare() {
  RECT bar = {};
  GetClientRect(Taskbar(), &bar);
  return {bar.right - bar.bottom, 0, bar.right, bar.bottom};
}

POINT MiddleOfIcon() {
  const RECT square = IconSquare();
  return {(square.left + square.right) / 2, (square.top + square.bottom) / 2};
}

}  // namespace

bool IconIsDrawn() {
  const RECT square = IconSquare();
  RECT bar = {};
  GetWindowRect(Taskbar(), &bar);
  const HDC screen = GetDC(nullptr);
  bool is_drawn = false;
  for (LONG y = square.top; y < square.bottom; ++y) {
    for (LONG x = square.left; x < square.right; ++x) {
      const COLORREF colour = GetPixel(screen, bar.left + x, bar.top + y);
      // The edge of the taskbar is lighter than its face; only an icon is darker.
      if (GetGValue(colour) < GetGValue(GetSysColor(COLOR_BTNFACE)) / 2) is_drawn = true;
    }
  }
  ReleaseDC(nullptr, screen);
  return is_drawn;
}

bool PointAtIcon() {
  const POINT middle = MiddleOfIcon();
  const POINT beside{2 * IconSquare().left - middle.x, middle.y};
  return PointAt(Taskbar(), beside) && PointAt(Taskbar(), middle);
}

bool PressIcon(Press press) { return PressAt(Taskbar(), MiddleOfIcon(), press); }

std::string IconTip() {
  DWORD process_id = 0;
  GetWindowThreadProcessId(Taskbar(), &process_id);
  for (const HWND tip : TopLevelWindows(process_id, kTipClass)) {
    if (IsWindowVisible(tip) != 0) return TextOf(tip);
  }
  return {};
}

}  // namespace qdix::e2e
