// The graph and the two gauges of the main window: their complete design, and the colours that reach the
// screen.
#include <gtest/gtest.h>

#include <set>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

class DrawingInstances : public testing::Test {
 protected:
  DrawingInstances() {
    rig.SetHasRunBefore();
    rig.Create();
  }
  ProgramRig rig;
  screens::QuondixScreen& screen = rig.program->QuondixScreen();
};

TEST_F(DrawingInstances, GraphIsRedOnTheColourOfMenus) {
  const controls::XGraphMeter& graph = screen.XGraphMeter1;
  EXPECT_EQ(graph.BackColour(), 0x80000004U);
  EXPECT_EQ(graph.ForeColour(), 0x000000FFU);
  EXPECT_EQ(graph.Max(), 100);
  EXPECT_EQ(graph.BarWidth(), 2);
  EXPECT_FALSE(graph.Flat());
  EXPECT_FALSE(graph.Inverted());
  EXPECT_EQ(graph.Border(), ui::BorderStyle::kThreeD);
  EXPECT_EQ(graph.InnerSize().height, 65);
}

/// Column by column from the right: the bar of a release, and the bars that it pushed aside.
TEST_F(DrawingInstances, GraphDrawsBarsOfTwoPixelsFromTheBottom) {
  ASSERT_TRUE(screen.XGraphMeter1.Update(100).Ok());
  std::vector<std::pair<ui::Colour, ui::Colour>> top_and_bottom;
  for (int x = 239; x > 236; --x) top_and_bottom.emplace_back(rig.graph.At(x, 0), rig.graph.At(x, 64));
  constexpr ui::Colour kMenu = 0x80000004U;
  constexpr ui::Colour kRed = 0x000000FFU;
  EXPECT_EQ(top_and_bottom,
            (std::vector<std::pair<ui::Colour, ui::Colour>>{{kMenu, kRed}, {kMenu, kRed}, {kMenu, kMenu}}));
}

class Gauges : public DrawingInstances, public testing::WithParamInterface<int> {
 protected:
  controls::Meter3& gauge = GetParam() == 1 ? screen.Gauge1 : screen.Gauge2;
};

TEST_P(Gauges, AreDarkBarsWithABorderOfAFixedSize) {
  EXPECT_EQ(gauge.Value(), 0);
  EXPECT_EQ(gauge.Border(), 1);
  EXPECT_EQ(static_cast<const ui::DrawingControl&>(gauge).Border(), ui::BorderStyle::kThreeD);
  EXPECT_EQ(gauge.InnerSize().width, 156);
  EXPECT_EQ(gauge.InnerSize().height, 16);
  EXPECT_EQ(gauge.BackColour(), 0x8000000FU);
  EXPECT_EQ(controls::Meter3::kSegments, 50);
  EXPECT_EQ(controls::Meter3::kWidthTwips, 2395);
  EXPECT_EQ(controls::Meter3::kHeightTwips, 300);
}

TEST_P(Gauges, ShowSegmentsInCyanOnDarkTeal) {
  PixelCanvas surface(156, 16);
  gauge.SurfaceChanged(&surface);
  const auto colours = [&surface] {
    std::set<ui::Colour> seen;
    for (int y = 0; y < surface.Height(); ++y) {
      for (int x = 0; x < surface.Width(); ++x) seen.insert(surface.At(x, y));
    }
    seen.erase(PixelCanvas::kUntouched);
    return seen;
  };
  constexpr ui::Colour kBlack = 0;
  constexpr ui::Colour kButtonFace = 0x8000000FU;
  EXPECT_EQ(colours(), (std::set<ui::Colour>{kBlack, 0x00404000U, kButtonFace}));
  ASSERT_TRUE(gauge.SetValue(50).Ok());
  EXPECT_EQ(colours(), (std::set<ui::Colour>{kBlack, 0x00FFFF00U, kButtonFace}));
}

INSTANTIATE_TEST_SUITE_P(Both, Gauges, testing::Values(1, 2));

}  // namespace
}  // namespace qdix::tests
