// The level meter: which values it accepts, when it draws, and every pixel of its picture.
#include "controls/meter3.h"

#include <initializer_list>

#include "tests/support/pixel_canvas.h"
#include "tests/unit/controls/drawing_bench.h"

namespace qdix::tests {
namespace {

using controls::Meter3;

constexpr ui::Colour kCyan = 0x00FFFF00U;
constexpr ui::Colour kDarkTeal = 0x00404000U;
constexpr ui::Colour kBlack = 0x00000000U;

class Meter : public DrawingTest {
 protected:
  Meter() { meter.AttachPeer(&peer); }

  /// Returns the expected colour at a position: 50 boxes of 4 x 12 pixels, 3 apart, the first at (2, 2).
  static ui::Colour Expected(int x, int y, int level) {
    constexpr int kEnd = 2 + 3 * 49 + 4;
    if (x < 2 || x >= kEnd || y < 2 || y > 13) return ui::kButtonFace;
    const bool is_border = y == 2 || y == 13 || (x - 2) % 3 == 0;
    if (is_border) return kBlack;
    return (x - 2) / 3 < level ? kCyan : kDarkTeal;
  }

  void ExpectPicture(int level) const {
    for (int y = 0; y < canvas.Height(); ++y) {
      for (int x = 0; x < canvas.Width(); ++x) {
        ASSERT_EQ(canvas.At(x, y), Expected(x, y, level)) << "at " << x << ", " << y << ", level " << level;
      }
    }
  }

  Meter3 meter{form, {.name = "meter"}};
  PixelCanvas canvas{156, 16};
};

TEST_F(Meter, ANewControlIsADarkBarOnButtonFace) {
  meter.SurfaceChanged(&canvas);
  EXPECT_EQ(meter.Value(), 0);
  ExpectPicture(0);
}

TEST_F(Meter, Value25LightsSegments0To24) {
  meter.SurfaceChanged(&canvas);
  ASSERT_TRUE(meter.SetValue(25).Ok());
  ExpectPicture(25);
  EXPECT_EQ(canvas.At(2 + 3 * 24 + 1, 7), kCyan);
  EXPECT_EQ(canvas.At(2 + 3 * 25 + 1, 7), kDarkTeal);
}

TEST_F(Meter, EveryLevelLightsThatManySegmentsUpAndDown) {
  meter.SurfaceChanged(&canvas);
  for (std::int16_t level = 0; level <= 50; ++level) {
    ASSERT_TRUE(meter.SetValue(level).Ok());
    ExpectPicture(level);
  }
  for (std::int16_t level = 50; level >= 0; --level) {
    ASSERT_TRUE(meter.SetValue(level).Ok());
    ExpectPicture(level);
  }
}

TEST_F(Meter, TheTwoColoursAreCyanAndDarkTealInBlueGreenRedOrder) {
  EXPECT_EQ(Meter3::kLit, kCyan);
  EXPECT_EQ(Meter3::kUnlit, kDarkTeal);
}

TEST_F(Meter, NeighboursShareOneBorderLine) {
  RecordingCanvas record(156, 16);
  meter.SurfaceChanged(&record);
  ASSERT_EQ(record.operations.size(), 51U);
  EXPECT_EQ(record.operations[1], "bordered 2 2 5 13 #4210688 #0");
  EXPECT_EQ(record.operations[2], "bordered 5 2 8 13 #4210688 #0");
  EXPECT_EQ(record.operations[50], "bordered 149 2 152 13 #4210688 #0");
}

TEST_F(Meter, EveryChangeRepaintsAll50SegmentsAndNothingElse) {
  meter.SurfaceChanged(&canvas);
  RecordingCanvas record(156, 16);
  meter.SurfaceChanged(&record);
  record.operations.clear();
  peer.repaints = 0;
  ASSERT_TRUE(meter.SetValue(1).Ok());
  ASSERT_EQ(record.operations.size(), 50U);
  EXPECT_EQ(record.operations[0], "bordered 2 2 5 13 #16776960 #0");
  EXPECT_EQ(record.operations[1], "bordered 5 2 8 13 #4210688 #0");
  EXPECT_EQ(peer.repaints, 1);
}

TEST_F(Meter, TheSameValueTwiceDoesNotDraw) {
  meter.SurfaceChanged(&canvas);
  ASSERT_TRUE(meter.SetValue(7).Ok());
  canvas.ClearCounts();
  peer.repaints = 0;
  EXPECT_TRUE(meter.SetValue(7).Ok());
  EXPECT_EQ(canvas.FillCount(), 0);
  EXPECT_EQ(peer.repaints, 0);
}

TEST_F(Meter, ValuesOutside0To50AreRefusedUnchangedAndNotDrawn) {
  meter.SurfaceChanged(&canvas);
  ASSERT_TRUE(meter.SetValue(7).Ok());
  canvas.ClearCounts();
  for (const std::int16_t refused : std::initializer_list<std::int16_t>{-1, 51, -32768, 32767}) {
    EXPECT_EQ(meter.SetValue(refused).Error().number, 380) << refused;
    EXPECT_EQ(meter.Value(), 7);
  }
  EXPECT_EQ(canvas.FillCount(), 0);
  ExpectPicture(7);
}

TEST_F(Meter, BothEndsOfTheRangeAreAccepted) {
  EXPECT_TRUE(meter.SetValue(50).Ok());
  EXPECT_EQ(meter.Value(), 50);
  EXPECT_TRUE(meter.SetValue(0).Ok());
  EXPECT_EQ(meter.Value(), 0);
}

TEST_F(Meter, WithoutASurfaceTheValueIsKeptAndDrawnLater) {
  ASSERT_TRUE(meter.SetValue(33).Ok());
  EXPECT_EQ(meter.Value(), 33);
  EXPECT_EQ(peer.repaints, 0);
  meter.SurfaceChanged(&canvas);
  EXPECT_EQ(peer.repaints, 1);
  ExpectPicture(33);
}

TEST_F(Meter, ALostSurfaceIsNotDrawnOnAndANewOneGetsTheCompletePicture) {
  meter.SurfaceChanged(&canvas);
  meter.SurfaceChanged(nullptr);
  ASSERT_TRUE(meter.SetValue(9).Ok());
  ExpectPicture(0);
  meter.SurfaceChanged(&canvas);
  ExpectPicture(9);
}

TEST_F(Meter, BorderIsThreeDimensionalAtFirst) {
  EXPECT_EQ(Meter3::kWidthTwips, 2395);
  EXPECT_EQ(Meter3::kHeightTwips, 300);
  EXPECT_EQ(meter.Border(), 1);
  EXPECT_EQ(static_cast<ui::DrawingControl&>(meter).Border(), ui::BorderStyle::kThreeD);
  EXPECT_EQ(meter.InnerSize().width, 156);
  EXPECT_EQ(meter.InnerSize().height, 16);
}

TEST_F(Meter, WithoutABorderTheInsideIsTheWhole160By20Pixels) {
  ASSERT_TRUE(meter.SetBorder(0).Ok());
  EXPECT_EQ(meter.Border(), 0);
  EXPECT_EQ(static_cast<ui::DrawingControl&>(meter).Border(), ui::BorderStyle::kNone);
  EXPECT_EQ(meter.InnerSize().width, 160);
  EXPECT_EQ(meter.InnerSize().height, 20);
}

TEST_F(Meter, APeerIsNotifiedOfABorderOnlyWhenItChanges) {
  ASSERT_TRUE(meter.SetBorder(1).Ok());
  EXPECT_EQ(peer.borders, 0);
  ASSERT_TRUE(meter.SetBorder(0).Ok());
  EXPECT_EQ(peer.borders, 1);
  ASSERT_TRUE(meter.SetBorder(1).Ok());
  EXPECT_EQ(peer.borders, 2);
}

TEST_F(Meter, OtherBordersAreRefusedUnchanged) {
  for (const std::int16_t refused : std::initializer_list<std::int16_t>{-1, 2, 32767}) {
    EXPECT_EQ(meter.SetBorder(refused).Error().number, 380) << refused;
    EXPECT_EQ(meter.Border(), 1);
  }
  EXPECT_EQ(peer.borders, 0);
}

TEST_F(Meter, AnotherSizeFromTheContainerSnapsBack) {
  meter.Resize(3000, 300);
  EXPECT_EQ(peer.borders, 1) << "the peer is told to resize its window";
  meter.Resize(2395, 15);
  EXPECT_EQ(peer.borders, 2);
  EXPECT_EQ(meter.InnerSize().width, 156);
  EXPECT_EQ(meter.InnerSize().height, 16);
}

TEST_F(Meter, ItsOwnSizeFromTheContainerIsLeftAlone) {
  meter.Resize(2395, 300);
  EXPECT_EQ(peer.borders, 0);
}

TEST_F(Meter, AnEmptyBagGivesTheDefaults) {
  ASSERT_TRUE(meter.SetValue(12).Ok());
  ASSERT_TRUE(meter.SetBorder(0).Ok());
  EXPECT_TRUE(meter.ReadProperties({}).Ok());
  EXPECT_EQ(meter.Value(), 0);
  EXPECT_EQ(meter.Border(), 1);
}

TEST_F(Meter, DefaultsLeaveTheBagEmpty) {
  ui::PropertyBag bag;
  meter.WriteProperties(bag);
  EXPECT_FALSE(bag.Keeps("Value"));
  EXPECT_FALSE(bag.Keeps("Border"));
}

TEST_F(Meter, PropertiesSurviveTheBag) {
  ASSERT_TRUE(meter.SetValue(12).Ok());
  ASSERT_TRUE(meter.SetBorder(0).Ok());
  ui::PropertyBag bag;
  meter.WriteProperties(bag);
  EXPECT_EQ(bag.ReadProperty("Value", -1), 12);
  EXPECT_EQ(bag.ReadProperty("Border", -1), 0);

  Meter3 other{form, {.name = "other"}};
  other.SurfaceChanged(&canvas);
  ASSERT_TRUE(other.ReadProperties(bag).Ok());
  EXPECT_EQ(other.Value(), 12);
  EXPECT_EQ(other.Border(), 0);
  ExpectPicture(12);
}

TEST_F(Meter, AnInvalidNumberLeavesItsPropertyAndAppliesTheOther) {
  ASSERT_TRUE(meter.SetValue(12).Ok());
  ui::PropertyBag bag;
  bag.WriteProperty("Value", 51, 0);
  bag.WriteProperty("Border", 0, 1);
  EXPECT_EQ(meter.ReadProperties(bag).Error().number, 380);
  EXPECT_EQ(meter.Value(), 12);
  EXPECT_EQ(meter.Border(), 0);

  bag.WriteProperty("Value", 5, 0);
  bag.WriteProperty("Border", 2, 1);
  EXPECT_EQ(meter.ReadProperties(bag).Error().number, 380);
  EXPECT_EQ(meter.Value(), 5);
  EXPECT_EQ(meter.Border(), 0);
}

TEST_F(Meter, ANumberBeyond16BitsIsAnOverflowNotTruncated) {
  ASSERT_TRUE(meter.SetValue(12).Ok());
  ui::PropertyBag bag;
  bag.WriteProperty("Value", 65536 + 5, 0);
  EXPECT_EQ(meter.ReadProperties(bag).Error().number, 6);
  EXPECT_EQ(meter.Value(), 12);

  bag.WriteProperty("Value", 0, 0);
  bag.WriteProperty("Border", 65536, 1);
  EXPECT_EQ(meter.ReadProperties(bag).Error().number, 6);
  EXPECT_EQ(meter.Border(), 1);
}

}  // namespace
}  // namespace qdix::tests
