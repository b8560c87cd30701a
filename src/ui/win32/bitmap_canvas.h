// A canvas on a bitmap in memory, which keeps the picture while the window is covered.
#pragma once

#include "ui/canvas.h"
#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

class BitmapCanvas final : public Canvas {
 public:
  /// Makes a bitmap in the screen's colour format. If Windows has no memory for it, all drawing does nothing.
  BitmapCanvas(int width_px, int height_px);
  BitmapCanvas(const BitmapCanvas&) = delete;
  BitmapCanvas& operator=(const BitmapCanvas&) = delete;
  ~BitmapCanvas() = default;

  /// Moves the picture to a bitmap in the screen's new colour format. Returns false and changes nothing if
  /// that fails.
  [[nodiscard]] bool FollowScreen();

  [[nodiscard]] HDC Device() const { return device_.get(); }

  [[nodiscard]] int Width() const override { return width_px_; }
  [[nodiscard]] int Height() const override { return height_px_; }
  void CopyOntoSelf(int to_x, int to_y, int width, int height, int from_x, int from_y) override;
  void FillBox(int x1, int y1, int x2, int y2, Colour colour) override;
  void FillBorderedBox(int x1, int y1, int x2, int y2, Colour fill, Colour border) override;

 private:
  int width_px_;
  int height_px_;
  OwnedGdiObject<HBITMAP> bitmap_;
  // Declared after the bitmap so that it is destroyed first: the bitmap is selected into it and can be
  // deleted only then.
  OwnedMemoryDevice device_;
};

}  // namespace qdix::ui::win32
