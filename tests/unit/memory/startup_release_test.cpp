// The single release after start-up and the delay before it.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using Sizes = std::vector<std::uint32_t>;
constexpr std::uint32_t kBytesOf16Mb = 16 * 1040000 + 1;
constexpr std::int64_t kSecondMs = 1000;

class StartupRelease : public testing::Test {
 protected:
  StartupRelease() {
    rig.SetHasRunBefore();
    rig.Store("Startup", "StartupRAM", "16");
  }
  void StartWithDelay(const char* seconds) {
    rig.Store("Startup", "StartupTime", seconds);
    rig.Start();
    rig.program->MainWindow().Timer1.SetEnabled(false);
  }
  [[nodiscard]] const Sizes& Allocations() const { return rig.machine.AllAllocations(); }

  ProgramRig rig;
};

class StartupDelayInSeconds : public StartupRelease, public testing::WithParamInterface<int> {};

TEST_P(StartupDelayInSeconds, PassesExactlyBeforeTheOneRelease) {
  StartWithDelay(std::to_string(GetParam()).c_str());
  rig.AdvanceMs(GetParam() * kSecondMs - 1);
  EXPECT_EQ(Allocations(), Sizes{});
  EXPECT_TRUE(rig.program->MainWindow().Timer3.Enabled());
  rig.AdvanceMs(1);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf16Mb});
  EXPECT_FALSE(rig.program->MainWindow().Timer3.Enabled());
  rig.AdvanceMs(24 * 60 * kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf16Mb}) << "once per run";
}
INSTANTIATE_TEST_SUITE_P(Values, StartupDelayInSeconds,
                         testing::Values(1, 59, 60, 61, 119, 120, 121, 179, 180, 181, 240, 300, 32767));

TEST_F(StartupRelease, DelayOf61SecondsIsAOneMinuteTickAndAOneSecondTick) {
  StartWithDelay("61");
  rig.AdvanceMs(60 * kSecondMs);
  EXPECT_EQ(rig.program->MainWindow().Timer3.Interval(), 1000);
  EXPECT_EQ(rig.program->StartupRelease().StartupDelayLeft(), 0);
}

TEST_F(StartupRelease, DelayOf300SecondsIsFiveMinuteTicksTheLastSetTo60Seconds) {
  StartWithDelay("300");
  const std::vector<int> left_after_minutes{240, 180, 120, 0};
  for (const int left_seconds : left_after_minutes) {
    rig.AdvanceMs(kMinuteMs);
    EXPECT_EQ(rig.program->StartupRelease().StartupDelayLeft(), left_seconds);
    EXPECT_EQ(rig.program->MainWindow().Timer3.Interval(), 60000);
    EXPECT_EQ(Allocations(), Sizes{});
  }
  rig.AdvanceMs(kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf16Mb});
}

TEST_F(StartupRelease, DelayIsRoundedToWholeSecondsFirst) {
  StartWithDelay("60.5");
  rig.AdvanceMs(60 * kSecondMs);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf16Mb});
}

TEST_F(StartupRelease, ZeroDelayNeverFires) {
  StartWithDelay("0");
  rig.AdvanceMs(60 * kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{});
}

TEST_F(StartupRelease, EveryAttemptRunsForAnyFreeAmount) {
  rig.Store("Settings", "TryTimes", "3");
  rig.SetAvailableMb(60);
  StartWithDelay("1");
  rig.AdvanceMs(kSecondMs);
  EXPECT_EQ(Allocations(), (Sizes{kBytesOf16Mb, kBytesOf16Mb, kBytesOf16Mb}));
  EXPECT_EQ(rig.NewestBarPx(), kFullBarPx);
  EXPECT_EQ(rig.Stored("Settings", "CounterValue"), std::nullopt) << "the release is not counted";
}

TEST_F(StartupRelease, LackOfMemoryWarnsOnceAndEndsTheRelease) {
  rig.Store("Settings", "TryTimes", "3");
  rig.machine.LimitAllocatableBytes(1000);
  StartWithDelay("1");
  rig.AdvanceMs(kMinuteMs);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.");
  EXPECT_FALSE(rig.program->MainWindow().Timer3.Enabled());
}

TEST_F(StartupRelease, LackOfMemoryIsSilentWithTheWarningTicked) {
  rig.Store("Settings", "Warnings", "1");
  rig.machine.LimitAllocatableBytes(1000);
  StartWithDelay("1");
  rig.AdvanceMs(kMinuteMs);
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_FALSE(rig.program->MainWindow().Timer3.Enabled());
}

TEST_F(StartupRelease, PauseCancelsItForThisRun) {
  StartWithDelay("240");
  rig.AdvanceMs(90 * kSecondMs);
  rig.program->QuondixScreen().Command3.Press();
  rig.AdvanceMs(10 * kSecondMs);
  rig.program->QuondixScreen().Command3.Press();
  rig.program->MainWindow().Timer1.SetEnabled(false);
  rig.AdvanceMs(60 * kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{});
}

TEST_F(StartupRelease, ErrorOfTheGraphIsShownAndNothingIsReleased) {
  StartWithDelay("1");
  rig.program->QuondixScreen().XGraphMeter1.SetMax(0);
  rig.AdvanceMs(kSecondMs);
  EXPECT_EQ(Allocations(), Sizes{});
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '11':\r\n\r\nDivision by zero");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(StartupRelease, CloseInTheMiddleKeepsNoBlock) {
  StartWithDelay("1");
  rig.machine.OnPump([this](int) { rig.program->Form().Unload(); });
  rig.AdvanceMs(kSecondMs);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf16Mb});
  EXPECT_EQ(rig.machine.OutstandingBlocks(), Sizes{});
}

}  // namespace
}  // namespace qdix::tests
