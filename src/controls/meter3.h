// A level meter: a row of 50 lamp-like segments, of which the first N are lit. Designed in twips, 15 of them
// a pixel; has a fixed size and takes nothing but its value from outside.
#pragma once

#include <cstdint>

#include "ui/canvas.h"
#include "ui/property_bag.h"

namespace qdix::controls {

class Meter3 final : public ui::DrawingControl {
 public:
  static constexpr int kSegments = 50;
  static constexpr std::int16_t kHighestValue = kSegments;
  /// The outer size that the control keeps whatever its container gives, in twips.
  static constexpr int kWidthTwips = 2395;
  static constexpr int kHeightTwips = 300;
  static constexpr ui::Colour kLit = 0x00FFFF00U;
  static constexpr ui::Colour kUnlit = 0x00404000U;
  static constexpr ui::Colour kSegmentBorder = 0x00000000U;

  Meter3(ui::Container& parent, const ui::Design& design);

  /// Number of lit segments.
  [[nodiscard]] std::int16_t Value() const { return value_; }
  /// Outside 0 to 50 is error 380, value unchanged. Draws only when the value changes.
  base::Status SetValue(std::int16_t value);

  /// 0 none, 1 a single line in three-dimensional look.
  [[nodiscard]] std::int16_t Border() const { return border_; }
  /// Another style than 0 and 1 is error 380.
  base::Status SetBorder(std::int16_t border);

  /// The container gave this outer size, in twips: where it is not the control's own, the peer puts the
  /// window back, as after a change of the border.
  void Resize(int width_twips, int height_twips);

  /// Outer size in pixels (160 x 20) less the border on each side.
  [[nodiscard]] PixelSize InnerSize() const override;

  /// Both properties from the bag, or their defaults. A number that a property refuses, or that 16 bits do
  /// not hold, is returned as its error and leaves that property as it is.
  base::Status ReadProperties(const ui::PropertyBag& bag);
  void WriteProperties(ui::PropertyBag& bag) const;

 private:
  // What a change of the value runs, in this order.
  void SetLevelValue() { level_ = value_; }
  void ShowLevel();

  void DrawAll() override;

  std::int16_t value_ = 0;
  std::int16_t level_ = 0;
  std::int16_t border_ = 1;
};

}  // namespace qdix::controls
