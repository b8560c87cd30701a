// The strip chart: its picture pixel by pixel, its errors, what clears it, and its properties in the bag.
#include "controls/x_graph_meter.h"

#include <limits>

#include "tests/support/pixel_canvas.h"
#include "tests/unit/controls/drawing_bench.h"

namespace qdix::tests {
namespace {

using controls::XGraphMeter;
using controls::XGraphMeterProperties;

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
constexpr ui::Colour kBack = 0x80000004U;
constexpr ui::Colour kRed = 0x000000FFU;
constexpr ui::Colour kBlue = 0x00FF0000U;
constexpr int kWidth = 10;
constexpr int kHeight = 65;

class Graph : public DrawingTest {
 protected:
  Graph() {
    graph.AttachPeer(&peer);
    graph.SurfaceChanged(&canvas);
    canvas.ClearCounts();
    peer = {};
  }

  void Push(std::int32_t value) { ASSERT_TRUE(graph.Update(value).Ok()) << value; }

  /// Returns how many pixels of a column have this colour.
  [[nodiscard]] int CountIn(int x, ui::Colour colour) const {
    int count = 0;
    for (int y = 0; y < kHeight; ++y) count += canvas.At(x, y) == colour ? 1 : 0;
    return count;
  }

  /// Expects both columns of the newest bar to be filled in these rows, both ends included, and empty
  /// elsewhere.
  void ExpectNewestBar(int top, int bottom) const {
    for (int x = kWidth - 2; x < kWidth; ++x) {
      for (int y = 0; y < kHeight; ++y) {
        ASSERT_EQ(canvas.At(x, y), y >= top && y <= bottom ? kRed : kBack) << "at " << x << ", " << y;
      }
    }
  }
  void ExpectNoNewestBar() const { ExpectNewestBar(kHeight, -1); }

  /// Expects the whole picture to be empty.
  void ExpectCleared() const {
    for (int x = 0; x < kWidth; ++x) ASSERT_EQ(CountIn(x, graph.BackColour()), kHeight) << "column " << x;
  }

  XGraphMeter graph{form, {.name = "graph"}, {.back_colour = kBack, .fore_colour = kRed}};
  PixelCanvas canvas{kWidth, kHeight};
};

TEST_F(Graph, DefaultsOfTheSixProperties) {
  const XGraphMeter plain{form, {.name = "plain"}};
  EXPECT_EQ(plain.Max(), 100);
  EXPECT_EQ(plain.BarWidth(), 2);
  EXPECT_EQ(plain.BackColour(), 0x8000000FU);
  EXPECT_EQ(plain.ForeColour(), 0x80000012U);
  EXPECT_FALSE(plain.Flat());
  EXPECT_FALSE(plain.Inverted());
  EXPECT_EQ(plain.Border(), ui::BorderStyle::kThreeD);
}

TEST_F(Graph, TheInstanceTakesItsPropertiesFromTheDesign) {
  const XGraphMeter other{
      form,
      {.name = "other"},
      {.max = 7, .bar_width = 3, .back_colour = 1, .fore_colour = 2, .flat = true, .inverted = true}};
  EXPECT_EQ(other.Max(), 7);
  EXPECT_EQ(other.BarWidth(), 3);
  EXPECT_EQ(other.BackColour(), 1U);
  EXPECT_EQ(other.ForeColour(), 2U);
  EXPECT_TRUE(other.Flat());
  EXPECT_TRUE(other.Inverted());
  EXPECT_EQ(other.Border(), ui::BorderStyle::kFlatLine);
}

TEST_F(Graph, WidthAndHeightAreThoseOfTheSurfaceOr0) {
  EXPECT_EQ(graph.Width(), kWidth);
  EXPECT_EQ(graph.Height(), kHeight);
  graph.SurfaceChanged(nullptr);
  EXPECT_EQ(graph.Width(), 0);
  EXPECT_EQ(graph.Height(), 0);
  PixelCanvas larger(30, 40);
  graph.SurfaceChanged(&larger);
  EXPECT_EQ(graph.Width(), 30);
  EXPECT_EQ(graph.Height(), 40);
}

TEST_F(Graph, InsistsOnAnInnerHeightOf65AndNoWidth) {
  EXPECT_EQ(graph.InnerSize().height, 65);
  EXPECT_EQ(graph.InnerSize().width, 0);
}

TEST_F(Graph, ANewSurfaceIsClearedToTheBackColour) {
  ExpectCleared();
  Push(100);
  graph.SurfaceChanged(&canvas);
  ExpectCleared();
}

TEST_F(Graph, ValueEqualToMaxIsOnePixelShortOfTheHeight) {
  Push(100);
  ExpectNewestBar(1, 64);
  EXPECT_EQ(CountIn(9, kRed), 64);
}

TEST_F(Graph, HalfOfMaxIsRoundedHalfToEven) {
  Push(50);  // 31.5
  ExpectNewestBar(33, 64);
  EXPECT_EQ(CountIn(9, kRed), 32);
}

TEST_F(Graph, ATieAboveAnEvenNumberIsRoundedDown) {
  RecordingCanvas record(240, 67);
  graph.SurfaceChanged(&record);
  Push(50);  // 32.5
  EXPECT_EQ(record.operations.back(), "fill 238 35 240 67 #255");
}

TEST_F(Graph, InvertedValue4FillsRows0To2) {
  graph.SetInverted(true);
  Push(4);  // 1.6
  ExpectNewestBar(0, 2);
}

TEST_F(Graph, InvertedMaxFillsTheWholeHeight) {
  graph.SetInverted(true);
  Push(100);  // rows 0 to 64, both included
  ExpectNewestBar(0, 64);
}

TEST_F(Graph, AValueTooSmallForAPixelDrawsNothing) {
  Push(1);  // -0.35, rounded to 0: from the row below the surface
  ExpectNoNewestBar();
}

TEST_F(Graph, InvertedAValueTooSmallForAPixelDrawsTheTopRow) {
  graph.SetInverted(true);
  Push(1);
  ExpectNewestBar(0, 0);
}

TEST_F(Graph, ZeroAndNegativeValuesOnlyScroll) {
  for (const std::int32_t value : {0, -1, -100, kSmallest}) {
    Push(100);
    Push(value);
    ExpectNoNewestBar();
    EXPECT_EQ(CountIn(kWidth - 3, kRed), 64) << "the previous bar moved, value " << value;
  }
}

TEST_F(Graph, ValuesAboveMaxFillTheHeightAndNoOtherColumn) {
  Push(0);
  Push(1000);
  ExpectNewestBar(0, 64);
  EXPECT_EQ(CountIn(kWidth - 3, kRed), 0);
  graph.SetInverted(true);
  Push(1000);
  ExpectNewestBar(0, 64);
}

TEST_F(Graph, ANegativeMaxDrawsNothing) {
  graph.SetMax(-100);
  Push(50);
  ExpectNoNewestBar();
}

TEST_F(Graph, EachValueMovesThePictureLeftByOneBarAndTheOldestFallsOff) {
  for (const std::int32_t value : {20, 40, 60, 80, 100}) Push(value);  // fills all five places
  const int heights[] = {12, 25, 38, 51, 64};
  for (int bar = 0; bar < 5; ++bar) {
    EXPECT_EQ(CountIn(2 * bar, kRed), heights[bar]) << "bar " << bar;
    EXPECT_EQ(CountIn(2 * bar + 1, kRed), heights[bar]) << "bar " << bar;
  }
  Push(0);
  for (int bar = 0; bar < 4; ++bar) {
    EXPECT_EQ(CountIn(2 * bar, kRed), heights[bar + 1]) << "bar " << bar;
    EXPECT_EQ(CountIn(2 * bar + 1, kRed), heights[bar + 1]) << "bar " << bar;
  }
  ExpectNoNewestBar();
}

TEST_F(Graph, BarWidthIsTheStepToo) {
  graph.SetBarWidth(3);
  Push(100);
  Push(0);
  for (int x = 0; x < kWidth; ++x) EXPECT_EQ(CountIn(x, kRed), x >= 4 && x <= 6 ? 64 : 0) << "column " << x;
}

TEST_F(Graph, ABarWiderThanTheSurfaceFillsItAll) {
  graph.SetBarWidth(500);
  Push(100);
  for (int x = 0; x < kWidth; ++x) EXPECT_EQ(CountIn(x, kRed), 64) << "column " << x;
}

TEST_F(Graph, ABarWidthOf0DrawsBeyondTheSurface) {
  Push(100);
  graph.SetBarWidth(0);
  Push(100);
  ExpectCleared();
}

TEST_F(Graph, AnUpdateIsOneCopyAndTwoFillsWithTheseCoordinates) {
  RecordingCanvas record(240, 65);
  graph.SurfaceChanged(&record);
  EXPECT_EQ(record.operations, (std::vector<std::string>{"fill 0 0 239 64 #2147483652"}));
  record.operations.clear();
  Push(50);
  EXPECT_EQ(record.operations,
            (std::vector<std::string>{"copy to -2 0 241 66 from 0 0", "fill 238 0 240 65 #2147483652",
                                      "fill 238 33 240 65 #255"}));
  graph.SetInverted(true);
  record.operations.clear();
  Push(4);
  EXPECT_EQ(record.operations,
            (std::vector<std::string>{"copy to -2 0 241 66 from 0 0", "fill 238 0 240 65 #2147483652",
                                      "fill 238 0 240 2 #255"}));
  record.operations.clear();
  Push(0);
  EXPECT_EQ(record.operations.size(), 2U);
}

TEST_F(Graph, ThePeerIsNotifiedOfEachUpdateOnce) {
  Push(50);
  EXPECT_EQ(peer.repaints, 1);
  Push(0);
  EXPECT_EQ(peer.repaints, 2);
}

TEST_F(Graph, MaxBarWidthFlatAndInvertedClear) {
  const auto clears = [this](const char* what, auto&& assign) {
    Push(100);
    peer.repaints = 0;
    assign();
    SCOPED_TRACE(what);
    ExpectCleared();
    EXPECT_EQ(peer.repaints, 1);
  };
  clears("Max", [this] { graph.SetMax(50); });
  clears("same Max", [this] { graph.SetMax(50); });
  clears("BarWidth", [this] { graph.SetBarWidth(4); });
  clears("same BarWidth", [this] { graph.SetBarWidth(4); });
  clears("Flat", [this] { graph.SetFlat(true); });
  clears("same Flat", [this] { graph.SetFlat(true); });
  clears("Inverted", [this] { graph.SetInverted(true); });
  clears("same Inverted", [this] { graph.SetInverted(true); });
}

TEST_F(Graph, FlatChangesTheBorderOnce) {
  graph.SetFlat(true);
  EXPECT_EQ(graph.Border(), ui::BorderStyle::kFlatLine);
  graph.SetFlat(true);
  EXPECT_EQ(peer.borders, 1);
  graph.SetFlat(false);
  EXPECT_EQ(graph.Border(), ui::BorderStyle::kThreeD);
  EXPECT_EQ(peer.borders, 2);
}

TEST_F(Graph, NewColoursLeaveOldBarsAndEmptyPlacesAsTheyAre) {
  Push(100);
  canvas.ClearCounts();
  graph.SetForeColour(kBlue);
  graph.SetBackColour(0x00FFFFFFU);
  EXPECT_EQ(canvas.FillCount(), 0);
  EXPECT_EQ(CountIn(9, kRed), 64);
  Push(50);
  EXPECT_EQ(CountIn(7, kRed), 64);
  EXPECT_EQ(CountIn(7, kBack), 1);
  EXPECT_EQ(CountIn(9, kBlue), 32);
  EXPECT_EQ(CountIn(9, 0x00FFFFFFU), 33);
}

TEST_F(Graph, AMaxOf0IsADivisionErrorAfterTheScroll) {
  RecordingCanvas record(kWidth, kHeight);
  graph.SurfaceChanged(&record);
  graph.SetMax(0);
  record.operations.clear();
  peer.repaints = 0;
  EXPECT_EQ(graph.Update(1).Error().number, 11);
  EXPECT_EQ(record.operations.size(), 2U) << "the scroll and the empty strip";
  EXPECT_EQ(peer.repaints, 1);
}

TEST_F(Graph, AMaxOf0IsNoErrorForValuesThatDrawNoBar) {
  graph.SetMax(0);
  EXPECT_TRUE(graph.Update(0).Ok());
  EXPECT_TRUE(graph.Update(-1).Ok());
}

TEST_F(Graph, ABarHigherThan32BitsIsAnOverflow) {
  graph.SetMax(1);
  EXPECT_EQ(graph.Update(kLargest).Error().number, 6);
  graph.SetInverted(true);
  EXPECT_EQ(graph.Update(kLargest).Error().number, 6);
}

TEST_F(Graph, ATopBeyond32BitsIsAnOverflowAndHangingBarsHaveNoTop) {
  RecordingCanvas record(kWidth, 64);
  graph.SurfaceChanged(&record);
  graph.SetMax(-1);
  constexpr std::int32_t kValue = (1 << 25) - 1;  // the height is -2147483585, and 64 minus that does not fit
  EXPECT_EQ(graph.Update(kValue).Error().number, 6);
  graph.SetInverted(true);
  EXPECT_TRUE(graph.Update(kValue).Ok());
  EXPECT_EQ(record.operations.back(), "fill 8 0 10 -2147483585 #255");
}

TEST_F(Graph, ASurfaceOfTheLargestSizeIsAnOverflowBeforeAnythingIsDrawn) {
  RecordingCanvas wide(kLargest, 65);
  graph.SurfaceChanged(&wide);
  wide.operations.clear();
  EXPECT_EQ(graph.Update(0).Error().number, 6);
  EXPECT_TRUE(wide.operations.empty());

  RecordingCanvas high(240, kLargest);
  graph.SurfaceChanged(&high);
  high.operations.clear();
  EXPECT_EQ(graph.Update(0).Error().number, 6);
  EXPECT_TRUE(high.operations.empty());

  RecordingCanvas fits(kLargest - 1, kLargest - 1);
  graph.SurfaceChanged(&fits);
  EXPECT_TRUE(graph.Update(0).Ok());
}

TEST_F(Graph, ABarWidthThatHasNoNegativeIsAnOverflowBeforeAnythingIsDrawn) {
  graph.SetBarWidth(kSmallest);
  canvas.ClearCounts();
  EXPECT_EQ(graph.Update(0).Error().number, 6);
  EXPECT_EQ(canvas.CopyCount(), 0);
  EXPECT_EQ(canvas.FillCount(), 0);
}

TEST_F(Graph, ALeftEdgeBeyond32BitsIsAnOverflowAfterTheScroll) {
  RecordingCanvas record(kWidth, kHeight);
  graph.SurfaceChanged(&record);
  graph.SetBarWidth(-kLargest);  // 10 + 2147483647
  record.operations.clear();
  EXPECT_EQ(graph.Update(0).Error().number, 6);
  EXPECT_EQ(record.operations, (std::vector<std::string>{"copy to 2147483647 0 11 66 from 0 0"}));
}

TEST_F(Graph, WithoutASurfaceNothingIsDrawnAndErrorsAreTheSame) {
  graph.SurfaceChanged(nullptr);
  canvas.ClearCounts();
  EXPECT_TRUE(graph.Update(100).Ok());
  EXPECT_TRUE(graph.Update(0).Ok());
  graph.SetMax(0);
  EXPECT_EQ(graph.Update(1).Error().number, 11);
  EXPECT_EQ(canvas.CopyCount() + canvas.FillCount(), 0);
}

TEST_F(Graph, DefaultsLeaveTheBagEmpty) {
  ui::PropertyBag bag;
  XGraphMeter{form, {.name = "plain"}}.WriteProperties(bag);
  for (const char* name : {"Max", "BarWidth", "BackColor", "ForeColor", "Flat", "Inverted"}) {
    EXPECT_FALSE(bag.Keeps(name)) << name;
  }
}

TEST_F(Graph, PropertiesSurviveTheBag) {
  graph.SetMax(250);
  graph.SetBarWidth(5);
  graph.SetFlat(true);
  graph.SetInverted(true);
  ui::PropertyBag bag;
  graph.WriteProperties(bag);
  EXPECT_EQ(bag.ReadProperty("Max", 0), 250);
  EXPECT_EQ(bag.ReadProperty("BarWidth", 0), 5);
  EXPECT_EQ(bag.ReadProperty("BackColor", 0), static_cast<std::int32_t>(kBack));
  EXPECT_EQ(bag.ReadProperty("ForeColor", 0), 255);
  EXPECT_EQ(bag.ReadProperty("Flat", 0), -1);
  EXPECT_EQ(bag.ReadProperty("Inverted", 0), -1);

  XGraphMeter other{form, {.name = "other"}};
  other.ReadProperties(bag);
  EXPECT_EQ(other.Max(), 250);
  EXPECT_EQ(other.BarWidth(), 5);
  EXPECT_EQ(other.BackColour(), kBack);
  EXPECT_EQ(other.ForeColour(), kRed);
  EXPECT_TRUE(other.Flat());
  EXPECT_TRUE(other.Inverted());
}

TEST_F(Graph, AnEmptyBagGivesTheDefaultsAndClearsInThem) {
  graph.SetFlat(true);
  graph.SetInverted(true);
  Push(100);
  graph.ReadProperties({});
  EXPECT_EQ(graph.Max(), 100);
  EXPECT_EQ(graph.BarWidth(), 2);
  EXPECT_EQ(graph.BackColour(), ui::kButtonFace);
  EXPECT_EQ(graph.ForeColour(), ui::kButtonText);
  EXPECT_FALSE(graph.Flat());
  EXPECT_FALSE(graph.Inverted());
  ExpectCleared();
}

TEST_F(Graph, AnyNumberButZeroInTheBagIsTrue) {
  ui::PropertyBag bag;
  bag.WriteProperty("Flat", 1, 0);
  bag.WriteProperty("Inverted", 2, 0);
  graph.ReadProperties(bag);
  EXPECT_TRUE(graph.Flat());
  EXPECT_TRUE(graph.Inverted());
}

}  // namespace
}  // namespace qdix::tests
