// What texts can be measured for and drawn on: a window, or the page of a printer.
#pragma once

#include <cstdint>
#include <string_view>

namespace qdix::os {

/// One look of a text: the proportional font of the device, or its fixed-width one.
struct FontLook {
  int points = 8;
  bool is_bold = false;
  bool is_fixed = false;
  bool is_underlined = false;

  friend bool operator==(const FontLook&, const FontLook&) = default;
};

/// In pixels of the device.
struct FontHeight {
  int line_px = 1;
  /// From the upper edge to the line that the letters stand on.
  int ascent_px = 1;
};

/// Places are pixels of the device from its upper left corner, colours blue-green-red words.
class TextDevice {
 public:
  virtual ~TextDevice() = default;

  /// Width of a text in one line. 0 where the device cannot tell.
  [[nodiscard]] virtual int GetTextExtentPoint32A(const FontLook& look, std::string_view text) = 0;
  [[nodiscard]] virtual FontHeight GetTextMetricsA(const FontLook& look) = 0;

  /// Draws a text with its upper left corner at the place, on whatever is there.
  virtual void TextOutA(int left_px, int top_px, const FontLook& look, std::uint32_t colour,
                        std::string_view text) = 0;
  virtual void FillRect(int left_px, int top_px, int width_px, int height_px, std::uint32_t colour) = 0;
};

}  // namespace qdix::os
