// A level meter: a row of 50 segments that look like lamps; the first N are lit. Laid out in twips, 15 per
// pixel. Has a fixed size; only its value changes what it shows.
#pragma once

#include <cstdint>

#include "ui/canvas.h"
#include "ui/property_bag.h"

namespace qdix::controls {

class Meter3 final : public ui::DrawingControl {
 public:
  static constexpr int kSegments = 50;
  static constexpr std::int16_t kHighestValue = kSegments;
  /// Outer size in twips. The control keeps it whatever size its container gives.
  static constexpr int kWidthTwips = 2395;
  static constexpr int kHeightTwips = 300;
  static constexpr ui::Colour kLit = 0x00FFFF00U;
  static constexpr ui::Colour kUnlit = 0x00404000U;
  static constexpr ui::Colour kSegmentBorder = 0x00000000U;

  Meter3(ui::Container& parent, const ui::Design& design);

  [[nodiscard]] std::int16_t Value() const { return value_; }
  /// Draws only if the value changes. A value outside 0 to 50 returns error 380 and changes nothing.
  base::Status SetValue(std::int16_t value);

  /// 0 is no border, 1 a single line with a three-dimensional look.
  [[nodiscard]] std::int16_t Border() const { return border_; }
  /// A value other than 0 or 1 returns error 380.
  base::Status SetBorder(std::int16_t border);

  /// The container set this outer size, in twips. If it is not the control's own, the peer restores the
  /// window's size, as after a change of the border.
  void Resize(int width_twips, int height_twips);

  /// Outer size in pixels (160 x 20) minus the border on each side.
  [[nodiscard]] PixelSize InnerSize() const override;

  /// Reads both properties from the bag, or uses their defaults. If a property refuses its number or the
  /// number does not fit 16 bits, returns that error and leaves that property unchanged.
  base::Status ReadProperties(const ui::PropertyBag& bag);
  void WriteProperties(ui::PropertyBag& bag) const;

 private:
  // Run in this order when the value changes.
  void SetLevelValue() { level_ = value_; }
  void ShowLevel();

  void DrawAll() override;

  std::int16_t value_ = 0;
  std::int16_t level_ = 0;
  std::int16_t border_ = 1;
};

}  // namespace qdix::controls
