// A device with fixed-width fonts and simple heights that records what is drawn on it.
#pragma once

#include <string>
#include <vector>

#include "os/text_device.h"

namespace qdix::os::simulated {

struct DrawnText {
  int left;
  int top;
  FontLook look;
  std::uint32_t colour;
  std::string text;
};

struct FilledBox {
  int left;
  int top;
  int width;
  int height;
  std::uint32_t colour;
};

/// A letter is as many pixels wide as its font has points, one more in bold. A line is twice as high as the
/// font has points.
class SimulatedTextDevice final : public TextDevice {
 public:
  int GetTextExtentPoint32A(const FontLook& look, std::string_view text) override {
    return static_cast<int>(text.size()) * (look.points + (look.is_bold ? 1 : 0));
  }
  FontHeight GetTextMetricsA(const FontLook& look) override { return {look.points * 2, look.points * 3 / 2}; }
  void TextOutA(int left_px, int top_px, const FontLook& look, std::uint32_t colour,
                std::string_view text) override {
    texts.push_back({left_px, top_px, look, colour, std::string(text)});
  }
  void FillRect(int left_px, int top_px, int width_px, int height_px, std::uint32_t colour) override {
    boxes.push_back({left_px, top_px, width_px, height_px, colour});
  }

  std::vector<DrawnText> texts;
  std::vector<FilledBox> boxes;
};

}  // namespace qdix::os::simulated
