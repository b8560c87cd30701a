// A strip chart: each new value is a bar at the right edge, and the picture moves left by one bar. The
// picture on the surface is the only history; no value is kept.
#pragma once

#include <cstdint>

#include "ui/canvas.h"
#include "ui/property_bag.h"

namespace qdix::controls {

struct XGraphMeterProperties {
  /// The value that fills the height, less one pixel.
  std::int32_t max = 100;
  /// Width of a bar and step of the scroll, in pixels.
  std::int32_t bar_width = 2;
  ui::Colour back_colour = ui::kButtonFace;
  ui::Colour fore_colour = ui::kButtonText;
  /// A single line as border instead of the three-dimensional one.
  bool flat = false;
  /// Bars hang from the top instead of standing on the bottom.
  bool inverted = false;
};

/// The colour of the empty area is the control's back colour. Assigning a colour leaves the picture as it is;
/// assigning any of the other properties clears it, even to the value it has.
class XGraphMeter final : public ui::DrawingControl {
 public:
  XGraphMeter(ui::Container& parent, const ui::Design& design, const XGraphMeterProperties& properties = {});

  [[nodiscard]] std::int32_t Max() const { return max_; }
  void SetMax(std::int32_t max);
  [[nodiscard]] std::int32_t BarWidth() const { return bar_width_px_; }
  void SetBarWidth(std::int32_t bar_width_px);
  [[nodiscard]] ui::Colour ForeColour() const { return fore_colour_; }
  void SetForeColour(ui::Colour colour) { fore_colour_ = colour; }
  [[nodiscard]] bool Flat() const { return Border() == ui::BorderStyle::kFlatLine; }
  void SetFlat(bool flat);
  [[nodiscard]] bool Inverted() const { return inverted_; }
  void SetInverted(bool inverted);

  /// Inner size of the surface in pixels; 0 without a surface.
  [[nodiscard]] std::int32_t Width() const { return Surface() != nullptr ? Surface()->Width() : 0; }
  [[nodiscard]] std::int32_t Height() const { return Surface() != nullptr ? Surface()->Height() : 0; }

  /// Pushes one value. 0 and less only scroll; values above Max draw beyond the surface. Coordinates that 32
  /// bits do not hold are error 6, a Max of 0 is error 11 for a value above 0; what was drawn until then
  /// stays. Without a surface nothing is drawn, and the errors are those of an empty surface.
  base::Status Update(std::int32_t value);

  [[nodiscard]] PixelSize InnerSize() const override { return {0, kInnerHeightPixels}; }

  /// Every property from the bag, or its default; clears the picture.
  void ReadProperties(const ui::PropertyBag& bag);
  void WriteProperties(ui::PropertyBag& bag) const;

 private:
  /// Height of the surface that the bars were designed for.
  static constexpr int kInnerHeightPixels = 65;

  void DrawAll() override;
  void Clear();
  [[nodiscard]] base::Status Draw(std::int32_t value);
  [[nodiscard]] base::Status DrawBar(std::int32_t left, std::int32_t value);
  /// Fills from `left` to the right edge.
  void FillStrip(std::int32_t left, std::int32_t top, std::int32_t bottom, ui::Colour colour);

  std::int32_t max_;
  std::int32_t bar_width_px_;
  ui::Colour fore_colour_;
  bool inverted_;
};

}  // namespace qdix::controls
