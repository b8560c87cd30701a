// Every list and every range of the main window, complete.
#include <gtest/gtest.h>

#include <tuple>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using Texts = std::vector<std::string>;

Texts ItemsOf(const ui::ListControl& list) {
  Texts items;
  for (int index = 0; index < list.Count(); ++index) items.push_back(list.Item(index));
  return items;
}

class Lists : public testing::Test {
 protected:
  Lists() {
    rig.SetHasRunBefore();
    rig.Start();
  }
  ProgramRig rig;
  app::Form1& program = *rig.program;
};

TEST_F(Lists, CheckIntervalsAreNineValuesInSeconds) {
  EXPECT_EQ(ItemsOf(program.AutomaticScreen().List2),
            (Texts{"5", "10", "20", "30", "60", "120", "180", "240", "300"}));
}

TEST_F(Lists, TimedIntervalsAreThoseOfTheChosenUnit) {
  const Texts minutes{"5", "10", "15", "20", "30", "40", "50"};
  const Texts hours{"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8", "9",
                    "10", "12", "14", "16", "18", "20", "22", "24"};
  EXPECT_EQ(ItemsOf(program.TimeIntervalsScreen().lstTime), minutes);
  program.TimeIntervalsScreen().Option5.SetSelected(true);
  EXPECT_EQ(ItemsOf(program.TimeIntervalsScreen().lstTime), hours);
  program.TimeIntervalsScreen().Option4.SetSelected(true);
  EXPECT_EQ(ItemsOf(program.TimeIntervalsScreen().lstTime), minutes);
}

TEST_F(Lists, AmountsOfTheButtonAreThirty) {
  EXPECT_EQ(ItemsOf(program.QuondixScreen().List1),
            (Texts{"1 MB",   "2 MB",   "4 MB",   "6 MB",   "8 MB",   "12 MB",  "16 MB",  "20 MB",
                   "24 MB",  "28 MB",  "32 MB",  "40 MB",  "48 MB",  "56 MB",  "64 MB",  "72 MB",
                   "88 MB",  "104 MB", "120 MB", "136 MB", "168 MB", "200 MB", "232 MB", "264 MB",
                   "296 MB", "328 MB", "360 MB", "424 MB", "480 MB", "512 MB"}));
}

TEST_F(Lists, AmountsOfTheOtherReleasesAreTwentyFive) {
  const Texts amounts{"12 MB",  "16 MB",  "20 MB",  "24 MB",  "28 MB",  "32 MB",  "40 MB",
                      "48 MB",  "56 MB",  "64 MB",  "72 MB",  "88 MB",  "104 MB", "120 MB",
                      "136 MB", "168 MB", "200 MB", "232 MB", "264 MB", "296 MB", "328 MB",
                      "360 MB", "424 MB", "480 MB", "512 MB"};
  EXPECT_EQ(ItemsOf(program.TimeIntervalsScreen().List3), amounts);
  EXPECT_EQ(ItemsOf(program.AutomaticScreen().List4), amounts);
  EXPECT_EQ(ItemsOf(program.StartupScreen().Combo1), amounts);
}

TEST_F(Lists, PresetsAreThirteenNames) {
  EXPECT_EQ(ItemsOf(program.CacheScreen().Combo2),
            (Texts{"User-defined", "Standard System (Win95)", "Standard System (Win98/ME)",
                   "Power User (Win95)", "Power User (Win98/ME)", "Multimedia (Win95)",
                   "Multimedia (Win98/ME)", "3D Games (Win95)", "3D Games (Win98/ME)", "CD Writer (Win95)",
                   "CD Writer (Win98/ME)", "Low Memory System (Win95)", "Low Memory System (Win98/ME)"}));
}

/// Lists of programs and drives on the machine: empty on this one.
TEST_F(Lists, ProgramsAndDrivesComeFromTheMachine) {
  EXPECT_EQ(ItemsOf(program.LauncherScreen().List5), Texts{});
  EXPECT_EQ(ItemsOf(program.SwapFileScreen().Combo3), Texts{});
}

/// Minimum, maximum, value, small and large change. The minimum is at the top of a scroll bar and at the left
/// of a slider.
using Range = std::tuple<int, int, int, int, int>;

Range RangeOf(const ui::VerticalScrollBar& bar) {
  const ui::ScrollRange& range = bar.Range();
  return {range.minimum, range.maximum, bar.Value(), range.small_change, range.large_change};
}
Range RangeOf(const ui::Slider& slider) {
  const ui::SliderRange& range = slider.Range();
  return {range.minimum, range.maximum, range.value, range.small_change, range.large_change};
}

using Ranges = std::vector<std::pair<std::string, Range>>;

Ranges BarsOf(app::Form1& program) {
  return {{"VScroll1", RangeOf(program.QuondixScreen().VScroll1)},
          {"VScroll2", RangeOf(program.AutomaticScreen().VScroll2)},
          {"VScroll3", RangeOf(program.StartupScreen().VScroll3)},
          {"VScroll4", RangeOf(program.SwapFileScreen().VScroll4)}};
}
Ranges SlidersOf(app::Form1& program) {
  return {{"Slider1", RangeOf(program.CacheScreen().Slider1)},
          {"Slider2", RangeOf(program.CacheScreen().Slider2)},
          {"Slider3", RangeOf(program.CacheScreen().Slider3)},
          {"Slider4", RangeOf(program.CacheScreen().Slider4)},
          {"Slider5", RangeOf(program.CacheScreen().Slider5)},
          {"Slider7", RangeOf(program.StartupScreen().Slider7)}};
}

/// On a machine of 64 MB: 67,108,864 bytes, at 500 KB per 1,024,000 bytes, make 32,768.
TEST_F(Lists, RangesOfTheBars) {
  EXPECT_EQ(BarsOf(program), (Ranges{{"VScroll1", {20, 1, 1, 1, 5}},
                                     {"VScroll2", {32, 1, 2, 1, 4}},
                                     {"VScroll3", {240, 1, 60, 1, 10}},
                                     {"VScroll4", {32750, 0, 0, 5, 10}}}));
}

TEST_F(Lists, RangesOfTheSliders) {
  EXPECT_EQ(SlidersOf(program), (Ranges{{"Slider1", {512, 32768, 512, 512, 4096}},
                                        {"Slider2", {512, 32768, 512, 512, 4096}},
                                        {"Slider3", {512, 4096, 512, 512, 1024}},
                                        {"Slider4", {256, 8192, 677, 64, 512}},
                                        {"Slider5", {8, 256, 32, 8, 32}},
                                        {"Slider7", {1, 5, 1, 1, 1}}}));
}

TEST_F(Lists, OnlyChunkMovesInSteps) {
  const auto step = [](const ui::Slider& slider) { return slider.Range().step; };
  const screens::CacheScreen& cache = program.CacheScreen();
  EXPECT_EQ(
      (std::vector<int>{step(cache.Slider1), step(cache.Slider2), step(cache.Slider3), step(cache.Slider4),
                        step(cache.Slider5), step(program.StartupScreen().Slider7)}),
      (std::vector<int>{1, 1, 512, 1, 1, 1}));
}

/// The threshold has the same range on every machine.
TEST(ThresholdRange, ReachesFrom1To32OnSmallAndLargeMachines) {
  for (const std::uint32_t megabytes : {4U, 16U, 1024U}) {
    ProgramRig rig(megabytes * kMegabyte);
    rig.SetHasRunBefore();
    const ui::VerticalScrollBar& bar = rig.Start().AutomaticScreen().VScroll2;
    EXPECT_EQ(bar.Minimum(), 32) << megabytes;
    EXPECT_EQ(bar.Maximum(), 1) << megabytes;
  }
}

/// A slider's smallest value is at its left, and the smallest interval is the fastest.
TEST_F(Lists, FasterIsBelowTheLeftEndOfTheGraphIntervalAndSlowerBelowTheRight) {
  const screens::StartupScreen& screen = program.StartupScreen();
  const auto middle = [](const ui::Control& control) {
    return control.GetPlace().left + control.GetPlace().width / 2;
  };
  EXPECT_LT(screen.Slider7.Minimum(), screen.Slider7.Maximum());
  EXPECT_EQ(screen.lblFaster.Caption(), "Faster");
  EXPECT_EQ(screen.lblSlower.Caption(), "Slower");
  EXPECT_LT(middle(screen.lblFaster), middle(screen.Slider7));
  EXPECT_GT(middle(screen.lblSlower), middle(screen.Slider7));
  for (const ui::Label* const end : {&screen.lblFaster, &screen.lblSlower}) {
    EXPECT_GE(end->GetPlace().top, screen.Slider7.GetPlace().top + screen.Slider7.GetPlace().height);
  }
}

}  // namespace
}  // namespace qdix::tests
