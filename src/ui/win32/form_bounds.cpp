#include "ui/win32/form_bounds.h"

namespace qdix::ui::win32 {

DWORD MainStyleOf(const Form& form) {
  const DWORD sizing = form.IsResizable() ? WS_THICKFRAME | WS_MAXIMIZEBOX : 0;
  return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN | sizing;
}

SIZE OuterSize(const Form& form, const DialogFont& font, FormSize inner) {
  const PixelBox pixels = font.Pixels({0, 0, inner.width, inner.height});
  RECT outer{0, 0, pixels.width, pixels.height};
  AdjustWindowRectEx(&outer, MainStyleOf(form), FALSE, kMainExtendedStyle);
  return {outer.right - outer.left, outer.bottom - outer.top};
}

/// WINDOWPLACEMENT counts from the upper left corner of the work area, as the form does.
void FormBounds::Apply() const {
  if (!form_.IsResizable() || !form_.Bounds().has_value()) return;
  const WindowBounds& bounds = *form_.Bounds();
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(main_, &placement);
  if (!form_.Shown()) placement.showCmd = SW_HIDE;
  placement.rcNormalPosition = {bounds.left, bounds.top, bounds.left + bounds.width,
                                bounds.top + bounds.height};
  SetWindowPlacement(main_, &placement);
}

void FormBounds::Moved() const {
  if (!form_.IsResizable()) return;
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  if (GetWindowPlacement(main_, &placement) == 0) return;
  const RECT& normal = placement.rcNormalPosition;
  form_.UserMoved({.left = static_cast<int>(normal.left),
                   .top = static_cast<int>(normal.top),
                   .width = static_cast<int>(normal.right - normal.left),
                   .height = static_cast<int>(normal.bottom - normal.top)});
}

/// Ignores a minimised window, which has no inner size.
void FormBounds::Resized(LPARAM inner_size) const {
  if (form_.IsResizable() && IsIconic(main_) == 0) {
    form_.UserResized(font_.Units(LOWORD(inner_size), HIWORD(inner_size)));
  }
}

void FormBounds::Limit(MINMAXINFO& limits) const {
  if (!form_.IsResizable()) return;
  const SIZE smallest = OuterSize(form_, font_, form_.Smallest());
  limits.ptMinTrackSize = {smallest.cx, smallest.cy};
}

}  // namespace qdix::ui::win32
