// Shared by the tests of the drawing controls: a form to place them on, a peer that counts its notifications,
// and a canvas of any size that records its operations instead of pixels.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/canvas.h"
#include "ui/form.h"

namespace qdix::tests {

/// Counts the two kinds of changes that a drawing control makes.
class CountingPeer final : public ui::ControlPeer {
 public:
  void ControlChanged(ui::Control& /*control*/, ui::Change change) override {
    if (change == ui::Change::kRepaint) ++repaints;
    if (change == ui::Change::kBorder) ++borders;
  }

  int repaints = 0;
  int borders = 0;
};

/// Needs no memory for pixels, so it can be as large as an integer allows.
class RecordingCanvas final : public ui::Canvas {
 public:
  RecordingCanvas(int width, int height) : width_(width), height_(height) {}

  [[nodiscard]] int Width() const override { return width_; }
  [[nodiscard]] int Height() const override { return height_; }
  void CopyOntoSelf(int to_x, int to_y, int width, int height, int from_x, int from_y) override {
    Record("copy to", {to_x, to_y}, {width, height}, " from", {from_x, from_y});
  }
  void FillBox(int x1, int y1, int x2, int y2, ui::Colour colour) override {
    Record("fill", {x1, y1}, {x2, y2}, ColourName(colour), {});
  }
  void FillBorderedBox(int x1, int y1, int x2, int y2, ui::Colour fill, ui::Colour border) override {
    Record("bordered", {x1, y1}, {x2, y2}, ColourName(fill) + ColourName(border), {});
  }

  std::vector<std::string> operations;

 private:
  void Record(const std::string& verb, const std::vector<int>& first, const std::vector<int>& second,
              const std::string& middle, const std::vector<int>& third) {
    std::string text = verb;
    for (const int number : first) text += " " + std::to_string(number);
    for (const int number : second) text += " " + std::to_string(number);
    text += middle;
    for (const int number : third) text += " " + std::to_string(number);
    operations.push_back(text);
  }
  static std::string ColourName(ui::Colour colour) { return " #" + std::to_string(colour); }

  int width_;
  int height_;
};

class DrawingTest : public testing::Test {
 protected:
  ui::EventDispatcher events;
  ui::Form form{events, {.name = "form"}};
  CountingPeer peer;
};

}  // namespace qdix::tests
