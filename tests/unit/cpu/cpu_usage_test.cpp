// The processor load: readings, average, label, graph, and machines without statistics.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

/// A bar of 4 % on 65 pixels.
constexpr int kFloorBarPx = 2;
constexpr std::size_t kNoCall = static_cast<std::size_t>(-1);

class CpuUsage : public testing::Test {
 protected:
  CpuUsage() {
    rig.SetHasRunBefore();
    rig.Store("Startup", "StartupTime", "0");
  }
  void Refresh(int times = 1) { rig.AdvanceMs(times * kRefreshMs); }
  [[nodiscard]] const std::string& Label() { return rig.program->QuondixScreen().lblUSAGE.Caption(); }
  [[nodiscard]] std::int32_t Average() { return rig.program->CpuUsage().AverageCpuUsage(); }
  /// Returns the index of the first recorded call with this beginning.
  [[nodiscard]] std::size_t FirstCall(const std::string& beginning) const {
    const auto& calls = rig.machine.Calls();
    for (std::size_t place = 0; place < calls.size(); ++place) {
      if (calls[place].starts_with(beginning)) return place;
    }
    return kNoCall;
  }

  ProgramRig rig;
};

TEST_F(CpuUsage, SamplesStartAsSevenFoursAndTheFirstReading) {
  rig.machine.SetCpuLoad(100);
  rig.Start();
  EXPECT_EQ(Average(), (7 * 4 + 100) / 8);
  EXPECT_EQ(Label(), "0 %") << "nothing is shown before the first refresh";
}

TEST_F(CpuUsage, EightReadingsOfZeroShowZeroAndABarOfFour) {
  rig.machine.SetCpuLoad(0);
  rig.Start();
  Refresh(8);
  EXPECT_EQ(Average(), 0);
  EXPECT_EQ(Label(), "0 %");
  EXPECT_EQ(rig.NewestBarPx(), kFloorBarPx);
}

TEST_F(CpuUsage, LabelAndBarShowTheWholePartOfTheMean) {
  rig.machine.SetCpuLoad(50);
  rig.Start();
  Refresh(1);
  // The samples are 50 and seven fours; the first reading has dropped out.
  EXPECT_EQ(Label(), "9 %");
  Refresh(7);
  EXPECT_EQ(Label(), "50 %");
  EXPECT_EQ(rig.NewestBarPx(), 32);
}

TEST_F(CpuUsage, DisplayFollowsEveryThirdReadingAtThree) {
  rig.Store("Settings", "CPU", "3");
  rig.machine.SetCpuLoad(80);
  rig.Start();
  rig.graph.ClearCounts();
  std::vector<int> updates;
  for (int tick = 1; tick <= 7; ++tick) {
    const int before = rig.graph.CopyCount();
    Refresh();
    if (rig.graph.CopyCount() != before) updates.push_back(tick);
  }
  EXPECT_EQ(updates, (std::vector<int>{1, 4, 7}));
  EXPECT_EQ(Average(), (7 * 80 + 4) / 8) << "the samples are shifted at every tick";
}

TEST_F(CpuUsage, LowerIntervalBelowTheCountUpdatesAtOnce) {
  rig.Store("Settings", "CPU", "5");
  rig.machine.SetCpuLoad(80);
  rig.Start();
  Refresh(4);
  rig.graph.ClearCounts();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  rig.program->StartupScreen().Slider7.Drag(2);
  Refresh();
  EXPECT_EQ(rig.graph.CopyCount(), 1);
}

TEST_F(CpuUsage, WithoutStatisticsNothingIsShownOrReported) {
  rig.Start();
  Refresh(20);
  EXPECT_EQ(Label(), "0 %");
  EXPECT_EQ(Average(), 0);
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

TEST_F(CpuUsage, StatisticIsStartedBeforeItsFirstReading) {
  rig.machine.SetCpuLoad(10);
  rig.Start();
  const std::size_t started = FirstCall("RegOpenKeyExA(HKDD\\PerfStats\\StartStat");
  const std::size_t read = FirstCall("RegOpenKeyExA(HKDD\\PerfStats\\StatData");
  ASSERT_NE(started, kNoCall);
  ASSERT_NE(read, kNoCall);
  EXPECT_LT(started, read);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << "the load closes both keys";
}

TEST_F(CpuUsage, FailedQueryReadsZero) {
  rig.machine.SetCpuLoad(100);
  rig.Start();
  Refresh(8);
  ASSERT_EQ(Average(), 100);
  rig.machine.FailNextCall("RegQueryValueExA");
  Refresh();
  EXPECT_EQ(Average(), 700 / 8);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(CpuUsage, FailedOpenSkipsTheReading) {
  rig.machine.SetCpuLoad(100);
  rig.Start();
  Refresh(8);
  rig.machine.SetCpuLoad(0);
  rig.machine.FailNextCall("RegOpenKeyExA");
  Refresh();
  EXPECT_EQ(Average(), 100);
  EXPECT_EQ(Label(), "100 %");
}

TEST_F(CpuUsage, KeysOfReadingsBetweenTwoUpdatesStayOpen) {
  rig.Store("Settings", "CPU", "3");
  rig.machine.SetCpuLoad(10);
  rig.Start();
  Refresh(1);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
  Refresh(2);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 2);
  Refresh(3);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 4) << "S - 1 keys stay open in S ticks";
}

TEST_F(CpuUsage, NoKeyStaysOpenAtTheFastestInterval) {
  rig.machine.SetCpuLoad(10);
  rig.Start();
  Refresh(100);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

TEST_F(CpuUsage, ReadingOutsideAByteIsReportedWheneverItIsInTheOldestSlot) {
  rig.machine.SetCpuLoad(300);
  rig.Store("Settings", "CPU", "1");
  rig.machine.WhileBoxIsOpen([this] { EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << "closed before the box"; });
  rig.Start();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U) << "this is the very first reading";
  EXPECT_EQ(rig.machine.Boxes()[0].text, "error in CPU Usage Code\r\nOverflow - err number 6");
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk);
  EXPECT_FALSE(rig.program->Form().Unloaded()) << "the load continues";
  EXPECT_EQ(rig.machine.TrayIconCount(), 1);
  Refresh(7);
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  Refresh(2);
  EXPECT_EQ(rig.machine.Boxes().size(), 3U);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST_F(CpuUsage, FirstReadingOutsideAByteLeavesSevenFoursAndNothing) {
  rig.machine.SetCpuLoad(256);
  rig.Start();
  EXPECT_EQ(Average(), 7 * 4 / 8);
}

TEST_F(CpuUsage, ReadingAboveHalfOfTheRangeIsNegative) {
  rig.machine.SetCpuLoad(0xFFFFFFF8U);
  rig.Start();
  Refresh();
  EXPECT_EQ(Average(), (7 * 4 - 8) / 8);
}

TEST_F(CpuUsage, BytesAreReadInLittleEndianOrder) {
  rig.machine.SetCpuLoadBytes(std::string("\x08\x01\x00\x00", 4));
  rig.Start();
  Refresh();
  EXPECT_EQ(Average(), (7 * 4 + 264) / 8);
}

TEST_F(CpuUsage, ShortValueIsPaddedAndALongOneCountsAsZero) {
  rig.machine.SetCpuLoadBytes("\x50");
  rig.Start();
  Refresh();
  EXPECT_EQ(Average(), (7 * 4 + 80) / 8);
  rig.machine.SetCpuLoadBytes("\x50\x50\x50\x50\x50");
  Refresh();
  EXPECT_EQ(Average(), (6 * 4 + 80) / 8);
}

TEST_F(CpuUsage, PauseStopsTheReadings) {
  rig.machine.SetCpuLoad(100);
  rig.Start();
  Refresh();
  rig.program->QuondixScreen().Command3.Press();
  const std::int32_t before = Average();
  Refresh(10);
  EXPECT_EQ(Average(), before);
}

TEST_F(CpuUsage, ManyReadingsLeaveNothingBehind) {
  rig.machine.SetCpuLoad(37);
  rig.Start();
  rig.RemoveGraph();
  for (int count = 0; count < 20000; ++count) rig.program->CpuUsage().CPUUsage();
  EXPECT_EQ(Average(), 37);
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

}  // namespace
}  // namespace qdix::tests
