#include "ui/win32/bitmap_canvas.h"

#include <algorithm>

#include "ui/win32/colours.h"

namespace qdix::ui::win32 {

namespace {

/// Clips a copy along one dimension: both ends stay on the surface. Uses 64 bits because callers may pass any
/// number.
struct CopySpan {
  CopySpan(int to, int from, int length, int surface) : to_px(to), from_px(from), length_px(length) {
    const std::int64_t cut = std::max<std::int64_t>({0, -to_px, -from_px});
    to_px += cut;
    from_px += cut;
    length_px -= cut;
    length_px = std::min({length_px, surface - to_px, surface - from_px});
  }

  std::int64_t to_px;
  std::int64_t from_px;
  std::int64_t length_px;
};

}  // namespace

BitmapCanvas::BitmapCanvas(int width_px, int height_px) : width_px_(width_px), height_px_(height_px) {
  const ScreenDevice screen;
  bitmap_.reset(CreateCompatibleBitmap(screen.Get(), width_px_, height_px_));
  device_.reset(CreateCompatibleDC(screen.Get()));
  if (bitmap_ != nullptr && device_ != nullptr) SelectObject(device_.get(), bitmap_.get());
}

bool BitmapCanvas::FollowScreen() {
  BitmapCanvas renewed(width_px_, height_px_);
  if (bitmap_ == nullptr || renewed.bitmap_ == nullptr ||
      BitBlt(renewed.Device(), 0, 0, width_px_, height_px_, Device(), 0, 0, SRCCOPY) == 0) {
    return false;
  }
  device_.swap(renewed.device_);
  bitmap_.swap(renewed.bitmap_);
  return true;
}

void BitmapCanvas::CopyOntoSelf(int to_x, int to_y, int width, int height, int from_x, int from_y) {
  const CopySpan across(to_x, from_x, width, width_px_);
  const CopySpan down(to_y, from_y, height, height_px_);
  if (across.length_px <= 0 || down.length_px <= 0) return;
  BitBlt(device_.get(), static_cast<int>(across.to_px), static_cast<int>(down.to_px),
         static_cast<int>(across.length_px), static_cast<int>(down.length_px), device_.get(),
         static_cast<int>(across.from_px), static_cast<int>(down.from_px), SRCCOPY);
}

/// Windows 95 takes device coordinates of 16 bits, so the box is clipped before it is drawn.
void BitmapCanvas::FillBox(int x1, int y1, int x2, int y2, Colour colour) {
  const RECT box{std::max(std::min(x1, x2), 0), std::max(std::min(y1, y2), 0),
                 std::min(std::max(x1, x2), width_px_ - 1) + 1,
                 std::min(std::max(y1, y2), height_px_ - 1) + 1};
  if (box.left >= box.right || box.top >= box.bottom) return;
  SetBkColor(device_.get(), ResolveColour(colour));
  ExtTextOutA(device_.get(), 0, 0, ETO_OPAQUE, &box, nullptr, 0, nullptr);  // fills without making a brush
}

void BitmapCanvas::FillBorderedBox(int x1, int y1, int x2, int y2, Colour fill, Colour border) {
  FillBox(x1, y1, x2, y2, border);
  const auto [left, right] = std::minmax(x1, x2);
  const auto [top, bottom] = std::minmax(y1, y2);
  const bool has_inside = std::int64_t{right} - left >= 2 && std::int64_t{bottom} - top >= 2;
  if (has_inside) FillBox(left + 1, top + 1, right - 1, bottom - 1, fill);
}

}  // namespace qdix::ui::win32
