// The shipped exe on its own: the processor load on label and graph, and the releases that start
// automatically.
#include "tests/e2e/driver/cpu_statistics.h"
#include "tests/e2e/driver/process_memory.h"
#include "tests/e2e/driver/quick_minutes.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

constexpr COLORREF kBar = RGB(255, 0, 0);

class SchedulerSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
    SetRegistryText(kStartup, "StartupTime", "0");
  }
  void TearDown() override {
    RemoveCpuStatistics();
    Session::TearDown();
  }

  /// Returns the colour of the graph's newest bar at this percentage of its height, 0 at the bottom.
  [[nodiscard]] COLORREF NewestBarAt(int percent) const {
    const HWND graph = program.Control("XGraphMeter1");
    RECT inner = {};
    GetClientRect(graph, &inner);
    POINT place{inner.right - 1, inner.bottom - 1 - (inner.bottom - 1) * percent / 100};
    ClientToScreen(graph, &place);
    return ScreenColour(place);
  }
};

TEST_F(SchedulerSession, LoadShowsOnLabelAndGraph) {
  SetCpuLoad(60);
  StartProgram();
  EXPECT_TRUE(program.Await([&] { return program.Text("lblUSAGE") == "60 %"; })) << program.Text("lblUSAGE");
  EXPECT_TRUE(program.Await([&] { return NewestBarAt(50) == kBar; })) << std::hex << NewestBarAt(50);
  EXPECT_NE(NewestBarAt(80), kBar);
  EXPECT_TRUE(Photograph("load"));
  SetCpuLoad(0);
  EXPECT_TRUE(program.Await([&] { return program.Text("lblUSAGE") == "0 %"; })) << program.Text("lblUSAGE");
  EXPECT_TRUE(program.Await([&] { return NewestBarAt(50) != kBar; }));
  EXPECT_EQ(NewestBarAt(0), kBar) << "an idle machine still shows a line";
  CloseProgram();
}

TEST_F(SchedulerSession, WithoutStatisticsTheLoadStaysAtItsInitialValue) {
  RemoveCpuStatistics();
  StartProgram();
  EXPECT_EQ(program.Text("lblUSAGE"), "0 %");
  CloseProgram();
}

TEST_F(SchedulerSession, ProcessorIsNamedWithItsClock) {
  StartProgram();
  const std::string text = program.Text("lblCPU");
  EXPECT_TRUE(text.starts_with("CPU : ")) << text;
  EXPECT_TRUE(text.ends_with(" MHz")) << text;
  EXPECT_GT(text.size(), std::string("CPU :   1 MHz").size());
  CloseProgram();
}

TEST_F(SchedulerSession, AutomaticReleaseFiresBelowTheThresholdAndCounts) {
  SetRegistryText(kSettings, "AutoActive", "1");
  SetRegistryText(kSettings, "AutoSecs", "5");
  SetRegistryText(kSettings, "MinRAM", "100000");
  SetRegistryText(kSettings, "CPUAutoActive", "0");
  StartProgram();
  program.OpenTab(1);
  EXPECT_TRUE(program.Text("lblCounter").find(" released RAM 0 times ") != std::string::npos);
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "CounterValue") == "2"; }));
  EXPECT_TRUE(
      program.Text("lblCounter")
          .starts_with("Automatic feature has detected and released RAM 2 times since Q-DIX was started on "))
      << program.Text("lblCounter");
  CloseProgram();
}

TEST_F(SchedulerSession, BusyProcessorHoldsTheAutomaticReleaseBack) {
  SetCpuLoad(100);
  SetRegistryText(kSettings, "AutoActive", "1");
  SetRegistryText(kSettings, "AutoSecs", "5");
  SetRegistryText(kSettings, "MinRAM", "100000");
  SetRegistryText(kSettings, "CPU", "1");
  SetRegistryText(kSettings, "AutoCPU", "16");
  StartProgram();
  // The first average is (7 x 4 + 100) / 8 = 16, so the limit applies from the first check on. The label
  // reaches its final value after six seconds, which is later than that check.
  EXPECT_TRUE(program.Await([&] { return program.Text("lblUSAGE") == "100 %"; }));
  EXPECT_EQ(RegistryText(kSettings, "CounterValue"), std::nullopt);
  SetCpuLoad(0);
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "CounterValue").has_value(); }));
  CloseProgram();
}

TEST_F(SchedulerSession, StartupReleaseRunsAfterItsDelay) {
  SetRegistryText(kStartup, "StartupTime", "2");
  SetRegistryText(kStartup, "StartupRAM", "64");
  SetRegistryText(kSettings, "TryTimes", "40");
  StartProgram();
  EXPECT_TRUE(program.Await([&] { return !program.CommittedBlocks(kBlockBytes).empty(); }));
  CloseProgram();
}

TEST_F(SchedulerSession, TimedReleaseCountsDown) {
  StartProgram();
  ASSERT_TRUE(QuickenMinutes(program.Process()));
  program.OpenTab(2);
  program.Press("Check3");
  EXPECT_TRUE(program.Await(
      [&] { return program.Text("lblNextRelease") == "Next Release of RAM is due in 30 minutes"; }));
  EXPECT_TRUE(program.Await(
      [&] { return program.Text("lblNextRelease") == "Next Release of RAM is due in 29 minutes"; }));
  CloseProgram();
}

TEST_F(SchedulerSession, UpTimeIsShownFromTheStart) {
  StartProgram();
  program.OpenTab(3);
  const std::string text = program.Text("lblTimeRunning");
  EXPECT_TRUE(text.starts_with("Your system has been running for ")) << text;
  EXPECT_TRUE(text.ends_with(" minutes.")) << text;
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
