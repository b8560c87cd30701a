// A strip chart: each new value is a bar at the right edge, and the picture moves left by one bar. The
// picture is the only history.
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
  bool flat = false;
  /// Bars hang from the top.
  bool inverted = false;
};

class XGraphMeter final : public ui::DrawingControl {
 public:
  XGraphMeter(ui::Container& parent, const ui::Design& design, const XGraphMeterProperties& properties = {});

  [[nodiscard]] const XGraphMeterProperties& Properties() const { return properties_; }
  // Max, BarWidth, Flat and Inverted clear the picture; the colours leave old bars as they are.
  void SetMax(std::int32_t max);
  void SetBarWidth(std::int32_t bar_width);
  void SetFlat(bool flat);
  void SetInverted(bool inverted);
  void SetGraphBackColour(ui::Colour colour) { properties_.back_colour = colour; }
  void SetForeColour(ui::Colour colour) { properties_.fore_colour = colour; }

  /// Inner size of the surface in pixels, as of the last resize.
  [[nodiscard]] std::int32_t Width() const { return width_; }
  [[nodiscard]] std::int32_t Height() const { return height_; }

  /// Pushes one value. 0 and less only scroll; values above Max draw beyond the surface. Coordinates that 32
  /// bits do not hold are error 6; a Max of 0 is a division error for a value above 0.
  base::Status Update(std::int32_t value);

  [[nodiscard]] PixelSize InnerSize() const override { return {0, kInnerHeightPixels}; }

  void ReadProperties(const ui::PropertyBag& bag);
  void WriteProperties(ui::PropertyBag& bag) const;

 private:
  /// Height of the surface that the bars were designed for.
  static constexpr int kInnerHeightPixels = 65;

  void DrawAll() override { Resize(); }
  void Resize();
  base::Status DrawBar(ui::Canvas& canvas, std::int32_t left, std::int32_t value);

  XGraphMeterProperties properties_;
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
};

}  // namespace qdix::controls
