#include "tests/e2e/driver/ranges.h"

#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/native_windows.h"

// clang-format off
#include <commctrl.h>
// clang-format on

namespace qdix::e2e {

namespace {

/// Distance from the end of the bar to a point inside its arrow.
constexpr LONG kIntoArrowPx = 3;

SIZE SizeOf(HWND window) {
  RECT rect = {};
  GetWindowRect(window, &rect);
  return {rect.right - rect.left, rect.bottom - rect.top};
}

/// Checks the triangle in the middle of an arrow button, without the button's edges, which are as dark.
bool IsDark(HWND bar, LONG middle_px) {
  constexpr LONG kHalfTrianglePx = 1;
  RECT place = {};
  GetWindowRect(bar, &place);
  const LONG x = (place.left + place.right) / 2;
  const HDC screen = GetDC(nullptr);
  bool is_dark = false;
  for (LONG y = middle_px - kHalfTrianglePx; y <= middle_px + kHalfTrianglePx; ++y) {
    if (GetPixel(screen, x, place.top + y) == GetSysColor(COLOR_BTNTEXT)) is_dark = true;
  }
  ReleaseDC(nullptr, screen);
  return is_dark;
}

/// The thumb moves between the ends of the channel, which lies half a thumb inside the window's edges. The
/// messages that return those rectangles do not work across processes.
POINT MiddleOfThumb(HWND slider) {
  constexpr LONG kEdgePx = 8;
  const auto half_thumb = static_cast<LONG>(Ask(slider, TBM_GETTHUMBLENGTH)) / 4;
  const int minimum = SliderMinimum(slider);
  const double share =
      static_cast<double>(SliderPosition(slider) - minimum) / (SliderMaximum(slider) - minimum);
  const LONG first = kEdgePx + half_thumb;
  const LONG way = SizeOf(slider).cx - 2 * first;
  return {first + static_cast<LONG>(share * static_cast<double>(way)), SizeOf(slider).cy / 3};
}

}  // namespace

int SliderPosition(HWND slider) { return static_cast<int>(Ask(slider, TBM_GETPOS)); }

int SliderMinimum(HWND slider) { return static_cast<int>(Ask(slider, TBM_GETRANGEMIN)); }

int SliderMaximum(HWND slider) { return static_cast<int>(Ask(slider, TBM_GETRANGEMAX)); }

bool PullThumb(HWND slider, int pixels) { return Drag(slider, MiddleOfThumb(slider), pixels); }

int SliderMarks(HWND slider) { return static_cast<int>(Ask(slider, TBM_GETNUMTICS)); }

int ScrollPosition(HWND bar) { return static_cast<int>(Ask(bar, SBM_GETPOS)); }

bool ArrowsLookEnabled(HWND bar) {
  const LONG quarter_px = SizeOf(bar).cy / 4;
  return IsDark(bar, quarter_px) && IsDark(bar, SizeOf(bar).cy - 1 - quarter_px);
}

bool ClickUpArrow(HWND bar) { return ClickAt(bar, {SizeOf(bar).cx / 2, kIntoArrowPx}); }

bool ClickDownArrow(HWND bar) { return ClickAt(bar, {SizeOf(bar).cx / 2, SizeOf(bar).cy - kIntoArrowPx}); }

}  // namespace qdix::e2e
