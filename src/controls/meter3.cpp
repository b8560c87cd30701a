#include "controls/meter3.h"

#include "base/numbers.h"

namespace qdix::controls {

namespace {

// Position of segment 0. Each further segment begins 20 twips before its neighbour ends, so their borders
// merge into one line.
constexpr int kSegmentLeftTwips = 30;
constexpr int kSegmentTopTwips = 25;
constexpr int kSegmentWidthTwips = 65;
constexpr int kSegmentHeightTwips = 180;
constexpr int kSegmentOverlapTwips = 20;

constexpr const char* kValueName = "Value";
constexpr const char* kBorderName = "Border";
constexpr std::int16_t kDefaultValue = 0;
constexpr std::int16_t kDefaultBorder = 1;

// Rounds to the nearest pixel. Whole positions are rounded, so errors do not add up along the row.
constexpr int ToPixels(int twips) { return (twips + ui::kTwipsPerPixel / 2) / ui::kTwipsPerPixel; }

constexpr int SegmentLeft(int segment) {
  return ToPixels(kSegmentLeftTwips + segment * (kSegmentWidthTwips - kSegmentOverlapTwips));
}

constexpr int kSegmentTop = ToPixels(kSegmentTopTwips);
constexpr int kSegmentWidth = ToPixels(kSegmentWidthTwips);
constexpr int kSegmentHeight = ToPixels(kSegmentHeightTwips);

ui::BorderStyle StyleOf(std::int16_t border) {
  return border == 0 ? ui::BorderStyle::kNone : ui::BorderStyle::kThreeD;
}

}  // namespace

Meter3::Meter3(ui::Container& parent, const ui::Design& design)
    : DrawingControl(parent, design, ui::BorderStyle::kThreeD) {}

base::Status Meter3::SetValue(std::int16_t value) {
  if (value < 0 || value > kHighestValue) return base::kInvalidPropertyValue;
  if (value_ == value) return base::kDone;
  value_ = value;
  SetLevelValue();
  ShowLevel();
  return base::kDone;
}

base::Status Meter3::SetBorder(std::int16_t border) {
  if (border != 0 && border != 1) return base::kInvalidPropertyValue;
  border_ = border;
  SetBorderStyle(StyleOf(border));
  return base::kDone;
}

void Meter3::Resize(int width_twips, int height_twips) {
  if (width_twips != kWidthTwips || height_twips != kHeightTwips) Notify(ui::Change::kBorder);
}

ui::DrawingControl::PixelSize Meter3::InnerSize() const {
  const int border_pixels = border_ == 0 ? 0 : ui::kThreeDBorderPixels;
  return {ToPixels(kWidthTwips) - 2 * border_pixels, ToPixels(kHeightTwips) - 2 * border_pixels};
}

void Meter3::ShowLevel() {
  ui::Canvas* const canvas = Surface();
  if (canvas == nullptr) return;
  for (int segment = 0; segment < kSegments; ++segment) {
    const int left = SegmentLeft(segment);
    canvas->FillBorderedBox(left, kSegmentTop, left + kSegmentWidth - 1, kSegmentTop + kSegmentHeight - 1,
                            segment < level_ ? kLit : kUnlit, kSegmentBorder);
  }
  PixelsChanged();
}

void Meter3::DrawAll() {
  Surface()->FillBox(0, 0, Surface()->Width() - 1, Surface()->Height() - 1, BackColour());
  ShowLevel();
}

base::Status Meter3::ReadProperties(const ui::PropertyBag& bag) {
  const base::Result<std::int16_t> value = base::ToInt16(bag.ReadProperty(kValueName, kDefaultValue));
  const base::Result<std::int16_t> border = base::ToInt16(bag.ReadProperty(kBorderName, kDefaultBorder));
  const base::Status value_set = value.Ok() ? SetValue(value.Value()) : value.Error();
  const base::Status border_set = border.Ok() ? SetBorder(border.Value()) : border.Error();
  return value_set.Ok() ? border_set : value_set;
}

void Meter3::WriteProperties(ui::PropertyBag& bag) const {
  bag.WriteProperty(kValueName, value_, kDefaultValue);
  bag.WriteProperty(kBorderName, border_, kDefaultBorder);
}

}  // namespace qdix::controls
