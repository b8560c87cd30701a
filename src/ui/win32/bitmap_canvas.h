// A canvas on a bitmap in memory, so that what was drawn survives being covered.
#pragma once

#include "ui/canvas.h"
#include "ui/win32/owned.h"

namespace qdix::ui::win32 {

class BitmapCanvas final : public Canvas {
 public:
  /// Made for the screen's colours. Without room for the bitmap every operation draws nothing.
  BitmapCanvas(int width_px, int height_px);
  BitmapCanvas(const BitmapCanvas&) = delete;
  BitmapCanvas& operator=(const BitmapCanvas&) = delete;
  ~BitmapCanvas() override = default;

  /// The screen has other colours now: goes over to a bitmap for them, with the same picture. False where
  /// that cannot be, and nothing changes.
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
  // Goes before the bitmap that is selected into it, and so frees it.
  OwnedMemoryDevice device_;
};

}  // namespace qdix::ui::win32
