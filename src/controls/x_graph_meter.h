// A strip chart: each new value is a bar at the right edge, and the picture moves left by the width of a bar.
// The picture is the only history; no values are kept.
#pragma once

#include <cstdint>

#include "ui/canvas.h"
#include "ui/property_bag.h"

namespace qdix::controls {

struct XGraphMeterProperties {
  /// Value of a bar that fills the height except one pixel.
  std::int32_t max = 100;
  /// Width of a bar, and distance the picture moves, in pixels.
  std::int32_t bar_width = 2;
  ui::Colour back_colour = ui::kButtonFace;
  ui::Colour fore_colour = ui::kButtonText;
  /// Draws the border as a single line, without a three-dimensional look.
  bool flat = false;
  /// Bars hang from the top instead of growing from the bottom.
  bool inverted = false;
};

/// The empty area has the control's back colour. Setting a colour leaves the picture alone. Setting any other
/// property clears it, even if the value is the same.
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

  /// Adds one value. 0 and negative values only move the picture; values above Max draw beyond the surface.
  /// Returns error 6 if a coordinate does not fit 32 bits and error 11 if Max is 0 and the value positive;
  /// what was drawn before the error stays. Without a surface it draws nothing and returns the errors of an
  /// empty surface.
  base::Status Update(std::int32_t value);

  [[nodiscard]] PixelSize InnerSize() const override { return {0, kInnerHeightPixels}; }

  /// Sets each property from the bag, or to its default. Clears the picture.
  void ReadProperties(const ui::PropertyBag& bag);
  void WriteProperties(ui::PropertyBag& bag) const;

 private:
  /// Surface height for which the bars were designed.
  static constexpr int kInnerHeightPixels = 65;

  void DrawAll() override;
  void Clear();
  [[nodiscard]] base::Status Draw(std::int32_t value);
  [[nodiscard]] base::Status DrawBar(std::int32_t left, std::int32_t value);
  /// Fills a strip from `left` to the right edge.
  void FillStrip(std::int32_t left, std::int32_t top, std::int32_t bottom, ui::Colour colour);

  std::int32_t max_;
  std::int32_t bar_width_px_;
  ui::Colour fore_colour_;
  bool inverted_;
};

}  // namespace qdix::controls
