// The canvas and the stepped time that other tests rely on.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/form_fixture.h"
#include "tests/support/pixel_canvas.h"
#include "tests/support/stepped_timers.h"

namespace qdix::tests {
namespace {

constexpr ui::Colour kFill = ui::kButtonFace;
constexpr ui::Colour kBorder = 0x0000FF;

/// Draws one letter per pixel: f fill, b border, a dot for an untouched pixel.
std::string Picture(const PixelCanvas& canvas) {
  std::string picture;
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const ui::Colour colour = canvas.At(x, y);
      picture += colour == kFill                     ? 'f'
                 : colour == kBorder                 ? 'b'
                 : colour == PixelCanvas::kUntouched ? '.'
                                                     : '?';
    }
    picture += '\n';
  }
  return picture;
}

TEST(PixelCanvasRules, BoxCoversBothCornersInEitherOrder) {
  PixelCanvas canvas(4, 3);
  canvas.FillBox(1, 0, 2, 1, kFill);
  EXPECT_EQ(Picture(canvas), ".ff.\n.ff.\n....\n");
  PixelCanvas turned(4, 3);
  turned.FillBox(2, 1, 1, 0, kFill);
  EXPECT_EQ(Picture(turned), Picture(canvas));
}

TEST(PixelCanvasRules, BoxIsClippedToTheSurface) {
  PixelCanvas canvas(3, 2);
  canvas.FillBox(-5, 1, 100, 100, kFill);
  EXPECT_EQ(Picture(canvas), "...\nfff\n");
  canvas.FillBox(3, 0, 9, 9, kBorder);
  EXPECT_EQ(Picture(canvas), "...\nfff\n") << "the whole box is outside";
}

TEST(PixelCanvasRules, BorderIsInsideTheBoxAndFillsASmallOne) {
  PixelCanvas canvas(5, 4);
  canvas.FillBorderedBox(4, 3, 0, 0, kFill, kBorder);
  EXPECT_EQ(Picture(canvas), "bbbbb\nbfffb\nbfffb\nbbbbb\n");
  PixelCanvas small(4, 3);
  small.FillBorderedBox(1, 0, 2, 2, kFill, kBorder);
  EXPECT_EQ(Picture(small), ".bb.\n.bb.\n.bb.\n");
}

TEST(PixelCanvasRules, CopyReadsBeforeItWritesAndIsClipped) {
  PixelCanvas canvas(4, 1);
  canvas.FillBox(1, 0, 1, 0, kFill);
  canvas.FillBox(2, 0, 2, 0, kBorder);
  canvas.CopyOntoSelf(1, 0, 3, 1, 0, 0);
  EXPECT_EQ(Picture(canvas), "..fb\n");
  canvas.CopyOntoSelf(-1, 0, 4, 1, 0, 0);
  EXPECT_EQ(Picture(canvas), ".fbb\n") << "no pixel came from outside";
}

TEST(PixelCanvasRules, OperationsAreCountedUntilTheCountsAreCleared) {
  PixelCanvas canvas(2, 2);
  canvas.FillBox(0, 0, 1, 1, kFill);
  canvas.FillBorderedBox(0, 0, 1, 1, kFill, kBorder);
  canvas.CopyOntoSelf(0, 0, 1, 1, 1, 1);
  EXPECT_EQ(canvas.FillCount(), 2);
  EXPECT_EQ(canvas.CopyCount(), 1);
  canvas.ClearCounts();
  EXPECT_EQ(canvas.FillCount() + canvas.CopyCount(), 0);
}

/// Two timers that log their letter and the time of each tick.
class SteppedTime : public testing::Test {
 protected:
  SteppedTime() {
    clock.Add(a);
    clock.Add(b);
    a.OnTimer = a_ticked.Handler();
    b.OnTimer = b_ticked.Handler();
    a_ticked.action = [this] { Note('a'); };
    b_ticked.action = [this] { Note('b'); };
  }
  void Note(char letter) { log += letter + std::to_string(clock.NowMs()) + ' '; }

  FormFixture fixture;
  SteppedTimers clock;
  ui::Timer a{fixture.events, "A", 200, true};
  ui::Timer b{fixture.events, "B", 100, true};
  Handled a_ticked;
  Handled b_ticked;
  std::string log;
};

TEST_F(SteppedTime, TicksComeInOrderOfTimeThenOfAdding) {
  clock.AdvanceMs(400);
  EXPECT_EQ(log, "b100 a200 b200 b300 a400 b400 ");
  EXPECT_EQ(clock.NowMs(), 400);
}

TEST_F(SteppedTime, SeveralStepsEqualOne) {
  for (int i = 0; i < 400; ++i) clock.AdvanceMs(1);
  EXPECT_EQ(log, "b100 a200 b200 b300 a400 b400 ");
}

TEST_F(SteppedTime, StepInsideATickRunsTheOtherTimersAndAdvancesTheTimeForAll) {
  a_ticked.action = [this] {
    Note('a');
    clock.AdvanceMs(250);
    Note('A');
  };
  clock.AdvanceMs(210);
  EXPECT_EQ(log, "b100 a200 b200 b300 b400 A450 ") << "timer a's tick at 400 fell into its own handler";
  EXPECT_EQ(clock.NowMs(), 450);
  log.clear();
  a_ticked.action = [this] { Note('a'); };
  clock.AdvanceMs(150);
  EXPECT_EQ(log, "b500 a600 b600 ");
}

TEST_F(SteppedTime, StoppedTimerDoesNotTickAndAStartedOneCountsFromNow) {
  b.SetEnabled(false);
  clock.AdvanceMs(150);
  b.SetEnabled(true);
  clock.AdvanceMs(100);
  EXPECT_EQ(log, "a200 b250 ");
}

}  // namespace
}  // namespace qdix::tests
