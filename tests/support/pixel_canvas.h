// A canvas in memory. It keeps colours exactly as given, system colours included.
#pragma once

#include <algorithm>
#include <vector>

#include "ui/canvas.h"

namespace qdix::tests {

class PixelCanvas final : public ui::Canvas {
 public:
  static constexpr ui::Colour kUntouched = 0x12345678U;

  PixelCanvas(int width, int height)
      : width_(width), height_(height), pixels_(static_cast<std::size_t>(width * height), kUntouched) {}

  [[nodiscard]] int Width() const override { return width_; }
  [[nodiscard]] int Height() const override { return height_; }

  void CopyOntoSelf(int to_x, int to_y, int width, int height, int from_x, int from_y) override {
    ++copies_;
    const std::vector<ui::Colour> before = pixels_;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (!Inside(from_x + x, from_y + y) || !Inside(to_x + x, to_y + y)) continue;
        pixels_[Index(to_x + x, to_y + y)] = before[Index(from_x + x, from_y + y)];
      }
    }
  }

  void FillBox(int x1, int y1, int x2, int y2, ui::Colour colour) override {
    ++fills_;
    Fill(x1, y1, x2, y2, colour);
  }

  void FillBorderedBox(int x1, int y1, int x2, int y2, ui::Colour fill, ui::Colour border) override {
    ++fills_;
    Fill(x1, y1, x2, y2, border);
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    const bool has_inside = right - left >= 2 && bottom - top >= 2;
    if (has_inside) Fill(left + 1, top + 1, right - 1, bottom - 1, fill);
  }

  [[nodiscard]] ui::Colour At(int x, int y) const { return pixels_.at(Index(x, y)); }
  /// Counts the calls of an operation, whatever their result; a bordered box is one fill.
  [[nodiscard]] int CopyCount() const { return copies_; }
  [[nodiscard]] int FillCount() const { return fills_; }
  void ClearCounts() { copies_ = fills_ = 0; }

 private:
  void Fill(int x1, int y1, int x2, int y2, ui::Colour colour) {
    for (int y = std::max(0, std::min(y1, y2)); y <= std::min(height_ - 1, std::max(y1, y2)); ++y) {
      for (int x = std::max(0, std::min(x1, x2)); x <= std::min(width_ - 1, std::max(x1, x2)); ++x) {
        pixels_[Index(x, y)] = colour;
      }
    }
  }
  [[nodiscard]] bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
  [[nodiscard]] std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y * width_ + x); }

  int width_;
  int height_;
  std::vector<ui::Colour> pixels_;
  int copies_ = 0;
  int fills_ = 0;
};

}  // namespace qdix::tests
