// The timed release and its countdown.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using Sizes = std::vector<std::uint32_t>;
constexpr std::uint32_t kBytesOf40Mb = 40 * 1040000 + 1;

class TimedRelease : public testing::Test {
 protected:
  /// Every 5 minutes, 40 MB. The start-up release is disabled.
  TimedRelease() {
    rig.SetHasRunBefore();
    rig.Store("Settings", "TimeActive", "1");
    rig.Store("Settings", "TimeQuondix", "40");
    rig.Store("Startup", "TimeMinutes", "5");
    rig.Store("Startup", "StartupTime", "0");
    rig.SetAvailableMb(20);
  }
  void RunMinutes(int minutes) {
    rig.program->MainWindow().Timer1.SetEnabled(false);
    rig.AdvanceMs(minutes * kMinuteMs);
  }
  [[nodiscard]] const Sizes& Allocations() const { return rig.machine.AllAllocations(); }
  [[nodiscard]] const std::string& Label() {
    return rig.program->TimeIntervalsScreen().lblNextRelease.Caption();
  }
  static std::string DueIn(int minutes) {
    return "Next Release of RAM is due in " + std::to_string(minutes) + " minutes";
  }

  ProgramRig rig;
};

TEST_F(TimedRelease, CountsDownReleasesAndStartsAgain) {
  rig.Start();
  EXPECT_EQ(Label(), DueIn(5));
  RunMinutes(4);
  EXPECT_EQ(Label(), DueIn(1));
  EXPECT_EQ(Allocations(), Sizes{});
  RunMinutes(1);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf40Mb});
  EXPECT_EQ(rig.NewestBarPx(), kFullBarPx);
  EXPECT_EQ(Label(), DueIn(5));
  RunMinutes(5);
  EXPECT_EQ(Allocations(), (Sizes{kBytesOf40Mb, kBytesOf40Mb}));
  EXPECT_EQ(rig.Stored("Settings", "CounterValue"), std::nullopt) << "no count is kept";
}

TEST_F(TimedRelease, HoursAnd24Are1440Minutes) {
  rig.Store("Settings", "TimeUnit", "2");
  rig.Store("Startup", "TimeHours", "24");
  rig.Start();
  EXPECT_EQ(Label(), DueIn(1440));
  RunMinutes(1439);
  EXPECT_EQ(Label(), DueIn(1));
  EXPECT_EQ(Allocations(), Sizes{});
  RunMinutes(1);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf40Mb});
  EXPECT_EQ(Label(), DueIn(1440));
}

TEST_F(TimedRelease, EnoughMemoryReleasesNothingAndRestartsTheCountdown) {
  rig.SetAvailableMb(40.01);
  rig.Start();
  RunMinutes(5);
  EXPECT_EQ(Allocations(), Sizes{});
  EXPECT_EQ(Label(), DueIn(5));
  EXPECT_EQ(rig.NewestBarPx(), kFullBarPx) << "the spike is shown anyway";
}

class TimedGate : public TimedRelease {
 protected:
  /// The processor is busy from the start.
  void SetUp() override {
    rig.Store("Settings", "CPUTimeActive", "1");
    rig.Store("Settings", "TimeCPU", "80");
    rig.machine.SetCpuLoad(100);
    rig.Start();
  }
};

TEST_F(TimedGate, BusyMinutesAreNotCountedAndRetriedEveryTenSeconds) {
  rig.AdvanceMs(kMinuteMs);
  EXPECT_EQ(Label(), DueIn(5));
  EXPECT_TRUE(rig.program->MainWindow().Timer5.Enabled());
  rig.AdvanceMs(10000);
  EXPECT_EQ(Label(), DueIn(5));
  EXPECT_TRUE(rig.program->MainWindow().Timer5.Enabled()) << "the processor is still busy, so it retries";
}

TEST_F(TimedGate, SuccessfulRetryCountsAnExtraMinute) {
  rig.AdvanceMs(kMinuteMs);
  rig.machine.SetCpuLoad(0);
  rig.AdvanceMs(10000);
  EXPECT_EQ(Label(), DueIn(4));
  EXPECT_FALSE(rig.program->MainWindow().Timer5.Enabled());
  rig.AdvanceMs(50000);
  EXPECT_EQ(Label(), DueIn(3)) << "the minute's own tick";
}

TEST_F(TimedGate, RetryMayRelease) {
  rig.machine.SetCpuLoad(0);
  rig.AdvanceMs(4 * kMinuteMs);
  EXPECT_EQ(Label(), DueIn(1));
  rig.machine.SetCpuLoad(100);
  rig.AdvanceMs(kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{});
  rig.machine.SetCpuLoad(0);
  rig.AdvanceMs(10000);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf40Mb});
  EXPECT_EQ(Label(), DueIn(5));
}

TEST_F(TimedGate, RetryContinuesWhilePaused) {
  rig.AdvanceMs(kMinuteMs);
  rig.program->QuondixScreen().Command3.Press();
  EXPECT_TRUE(rig.program->MainWindow().Timer5.Enabled());
  EXPECT_FALSE(rig.program->MainWindow().Timer4.Enabled());
}

/// A release is due, was held back by the processor and is retried in a second; the processor is idle now.
class WaitingRelease : public TimedGate {
 protected:
  void SetUp() override {
    TimedGate::SetUp();
    rig.machine.SetCpuLoad(0);
    rig.AdvanceMs(4 * kMinuteMs);
    rig.machine.SetCpuLoad(100);
    rig.AdvanceMs(kMinuteMs);
    rig.machine.SetCpuLoad(0);
    rig.AdvanceMs(9000);
  }
};

TEST_F(WaitingRelease, RunsDespiteAPause) {
  rig.program->QuondixScreen().Command3.Press();
  EXPECT_EQ(Allocations(), Sizes{});
  rig.AdvanceMs(1000);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf40Mb});
}

TEST_F(WaitingRelease, IsCancelledByUnticking) {
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  rig.program->TimeIntervalsScreen().Check3.Press();
  rig.AdvanceMs(10 * kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{});
}

TEST_F(TimedRelease, ChangingTheUnitContinuesTheCount) {
  rig.Store("Startup", "TimeMinutes", "30");
  rig.Start();
  RunMinutes(10);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  rig.program->TimeIntervalsScreen().Option5.Press();
  EXPECT_EQ(Label(), DueIn(50)) << "an hour minus ten minutes";
  rig.program->TimeIntervalsScreen().Option4.Press();
  EXPECT_EQ(Label(), DueIn(20));
}

TEST_F(TimedRelease, ChoosingAnIntervalRestartsTheCountdown) {
  rig.Start();
  RunMinutes(3);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  EXPECT_TRUE(rig.program->TimeIntervalsScreen().lstTime.Choose("10"));
  EXPECT_EQ(Label(), DueIn(10));
}

TEST_F(TimedRelease, ShorterIntervalShowsNegativeMinutesAndIsDueAtOnce) {
  rig.Store("Settings", "TimeUnit", "2");
  rig.Store("Startup", "TimeHours", "2");
  rig.Start();
  RunMinutes(100);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  rig.program->TimeIntervalsScreen().Option4.Press();
  EXPECT_EQ(Label(), DueIn(-95));
  RunMinutes(1);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf40Mb});
  EXPECT_EQ(Label(), DueIn(5));
}

TEST_F(TimedRelease, NoIntervalSelectedIsDueEveryMinute) {
  rig.Store("Startup", "TimeMinutes", "7");
  rig.Start();
  EXPECT_EQ(Label(), DueIn(0));
  RunMinutes(3);
  EXPECT_EQ(Allocations().size(), 3U);
}

TEST_F(TimedRelease, NoAmountSelectedReleasesNothing) {
  rig.Store("Settings", "TimeQuondix", "41");
  rig.Start();
  RunMinutes(5);
  EXPECT_EQ(Allocations(), Sizes{});
  EXPECT_EQ(Label(), DueIn(5));
}

TEST_F(TimedRelease, LackOfMemoryWarnsAndRetriesAMinuteLater) {
  rig.machine.LimitAllocatableBytes(1000);
  rig.Start();
  RunMinutes(5);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.");
  EXPECT_EQ(Label(), DueIn(0));
  RunMinutes(1);
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(Label(), DueIn(-1));
}

TEST_F(TimedRelease, MinuteCountOverflowsUntrapped) {
  rig.Store("Settings", "Warnings", "1");
  rig.machine.LimitAllocatableBytes(1000);
  rig.Start();
  rig.RemoveGraph();
  RunMinutes(32767);
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(Label(), DueIn(5 - 32767));
  RunMinutes(1);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(TimedRelease, UntickingStopsHidesTheLabelAndForgetsTheMinutes) {
  rig.Start();
  RunMinutes(3);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  rig.program->TimeIntervalsScreen().Check3.Press();
  EXPECT_FALSE(rig.program->TimeIntervalsScreen().lblNextRelease.Visible());
  EXPECT_EQ(rig.Stored("Settings", "TimeActive"), "0");
  RunMinutes(10);
  EXPECT_EQ(Allocations(), Sizes{});
  rig.program->TimeIntervalsScreen().Check3.Press();
  EXPECT_TRUE(rig.program->TimeIntervalsScreen().lblNextRelease.Visible());
  EXPECT_EQ(Label(), DueIn(5));
}

TEST_F(TimedRelease, CloseInTheMiddleKeepsNoBlock) {
  rig.Start();
  rig.machine.OnPump([this](int) { rig.program->Form().Unload(); });
  RunMinutes(5);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf40Mb});
  EXPECT_EQ(rig.machine.OutstandingBlocks(), Sizes{});
}

}  // namespace
}  // namespace qdix::tests
