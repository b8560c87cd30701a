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
    // Only what lies inside on both sides is copied, a row at a time: a long run draws thousands of graphs.
    const int left = std::max({0, -from_x, -to_x});
    const int right = std::min({width, width_ - from_x, width_ - to_x});
    const int top = std::max({0, -from_y, -to_y});
    const int bottom = std::min({height, height_ - from_y, height_ - to_y});
    if (left >= right) return;
    const std::vector<ui::Colour> before = pixels_;
    for (int y = top; y < bottom; ++y) {
      std::copy_n(&before[Index(from_x + left, from_y + y)], right - left,
                  &pixels_[Index(to_x + left, to_y + y)]);
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
    const int left = std::max(0, std::min(x1, x2));
    const int right = std::min(width_ - 1, std::max(x1, x2));
    if (left > right) return;
    for (int y = std::max(0, std::min(y1, y2)); y <= std::min(height_ - 1, std::max(y1, y2)); ++y) {
      std::fill_n(&pixels_[Index(left, y)], right - left + 1, colour);
    }
  }
  [[nodiscard]] std::size_t Index(int x, int y) const { return static_cast<std::size_t>(y * width_ + x); }

  int width_;
  int height_;
  std::vector<ui::Colour> pixels_;
  int copies_ = 0;
  int fills_ = 0;
};

}  // namespace qdix::tests
