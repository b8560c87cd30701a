// A device on which text is measured and drawn: a window or a printer page.
#pragma once

#include <cstdint>
#include <string_view>

namespace qdix::os {

/// The look of a text: in the proportional or the fixed-width font of the device.
struct FontLook {
  int points = 8;
  bool is_bold = false;
  bool is_fixed = false;
  bool is_underlined = false;

  friend bool operator==(const FontLook&, const FontLook&) = default;
};

/// In device pixels.
struct FontHeight {
  int line_px = 1;
  /// From the top of the line to the baseline.
  int ascent_px = 1;
};

/// Positions are device pixels from the upper left corner. Colours are 0x00BBGGRR.
class TextDevice {
 public:
  /// Returns the width of a text on one line, or 0 if the device cannot measure it.
  [[nodiscard]] virtual int GetTextExtentPoint32A(const FontLook& look, std::string_view text) = 0;
  [[nodiscard]] virtual FontHeight GetTextMetricsA(const FontLook& look) = 0;

  /// Draws a text with its upper left corner at the position. The background shows through.
  virtual void TextOutA(int left_px, int top_px, const FontLook& look, std::uint32_t colour,
                        std::string_view text) = 0;
  virtual void FillRect(int left_px, int top_px, int width_px, int height_px, std::uint32_t colour) = 0;

 protected:
  ~TextDevice() = default;
};

}  // namespace qdix::os
