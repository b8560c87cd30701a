// The automatic release: when it checks, when it acts, what it counts.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kWarning =
    "Warning - System Resources may be low.  Please check your harddisk space and swapfile size.";
constexpr std::uint32_t kBytesOf24Mb = 24 * 1040000 + 1;

using Sizes = std::vector<std::uint32_t>;

class AutomaticRelease : public testing::Test {
 protected:
  /// Checks every 20 seconds, acts below 8 MB, frees 24 MB. The start-up release is disabled.
  AutomaticRelease() {
    rig.SetHasRunBefore();
    rig.Store("Settings", "AutoActive", "1");
    rig.Store("Settings", "MinRAM", "8");
    rig.Store("Settings", "AutoQuondix", "24");
    rig.Store("Settings", "CounterDate", "46347.5");
    rig.Store("Settings", "CPUAutoActive", "0");
    rig.Store("Startup", "StartupTime", "0");
    rig.SetAvailableMb(5);
  }
  [[nodiscard]] const Sizes& Allocations() const { return rig.machine.AllAllocations(); }
  [[nodiscard]] std::string Count() const { return rig.Stored("Settings", "CounterValue").value_or("none"); }
  [[nodiscard]] const std::string& CounterText() {
    return rig.program->AutomaticScreen().lblCounter.Caption();
  }
  /// Runs ticks of the check timer, without the thousands of display refreshes between them.
  void RunChecks(int ticks) {
    rig.program->MainWindow().Timer1.SetEnabled(false);
    rig.AdvanceMs(ticks * rig.program->MainWindow().Timer2.Interval());
  }

  ProgramRig rig;
};

TEST_F(AutomaticRelease, BelowTheThresholdReleasesCountsAndShowsASpike) {
  rig.Start();
  rig.AdvanceMs(19999);
  EXPECT_EQ(Allocations(), Sizes{});
  rig.AdvanceMs(1);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf24Mb});
  EXPECT_EQ(rig.machine.PumpCount(), 10000);
  EXPECT_EQ(rig.NewestBarPx(), kFullBarPx);
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(CounterText(),
            "Automatic feature has detected and released RAM 1 times since Q-DIX was started on Saturday, "
            "November 21, 2026");
  rig.AdvanceMs(20000);
  EXPECT_EQ(Count(), "2");
}

TEST_F(AutomaticRelease, ThresholdEqualToTheAvailableMemoryDoesNotTrigger) {
  rig.SetAvailableMb(8);
  rig.Start();
  RunChecks(1);
  EXPECT_EQ(Count(), "none");
  rig.SetAvailableMb(7.99);
  RunChecks(1);
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticRelease, ThresholdIsTheLeadingNumberOfItsText) {
  rig.Start().AutomaticScreen().Text2.SetText("4.5 and more");
  RunChecks(1);
  EXPECT_EQ(Count(), "none");
  rig.program->AutomaticScreen().Text2.SetText("5.5 and more");
  RunChecks(1);
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticRelease, UntickedNeverChecks) {
  rig.Store("Settings", "AutoActive", "0");
  rig.Start();
  rig.AdvanceMs(10 * kMinuteMs);
  EXPECT_EQ(Allocations(), Sizes{});
}

class AutomaticGate : public AutomaticRelease {
 protected:
  void StartWithLoad(std::uint32_t percent) {
    rig.Store("Settings", "CPUAutoActive", "1");
    rig.Store("Settings", "AutoCPU", "80");
    rig.machine.SetCpuLoad(percent);
    rig.Start();
    rig.AdvanceMs(20000);
  }
};

TEST_F(AutomaticGate, AverageOfExactlyTheLimitSkipsTheRelease) {
  StartWithLoad(80);
  ASSERT_EQ(rig.program->CpuUsage().AverageCpuUsage(), 80);
  EXPECT_EQ(Allocations(), Sizes{});
  EXPECT_EQ(Count(), "none") << "nothing is counted";
  EXPECT_LT(rig.NewestBarPx(), kFullBarPx) << "there is no spike";
}

TEST_F(AutomaticGate, AverageBelowTheLimitLetsItRun) {
  StartWithLoad(79);
  ASSERT_EQ(rig.program->CpuUsage().AverageCpuUsage(), 79);
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticGate, StoredLimitCountsNotTheOneBeingTyped) {
  StartWithLoad(79);
  rig.program->AutomaticScreen().Text9.SetText("5");
  rig.AdvanceMs(20000);
  EXPECT_EQ(Count(), "2");
}

TEST_F(AutomaticGate, MissingLimitIs80) {
  rig.Store("Settings", "CPUAutoActive", "1");
  rig.machine.SetCpuLoad(80);
  rig.Start();
  rig.AdvanceMs(20000);
  EXPECT_EQ(Count(), "none");
}

TEST_F(AutomaticRelease, IntervalOf120ChecksEverySecondMinute) {
  rig.Store("Settings", "AutoSecs", "120");
  rig.Start();
  EXPECT_EQ(rig.program->AutomaticRelease().AutoCheckTicks(), 2);
  RunChecks(1);
  EXPECT_EQ(Count(), "none");
  RunChecks(1);
  EXPECT_EQ(Count(), "1");
  RunChecks(3);
  EXPECT_EQ(Count(), "2");
}

TEST_F(AutomaticRelease, IntervalOf60ChecksEveryMinute) {
  rig.Store("Settings", "AutoSecs", "60");
  rig.Start();
  EXPECT_EQ(rig.program->AutomaticRelease().AutoCheckTicks(), 1);
  EXPECT_EQ(rig.program->MainWindow().Timer2.Interval(), 60000);
  RunChecks(3);
  EXPECT_EQ(Count(), "3");
}

TEST_F(AutomaticRelease, TicksWhileTheCompanionWorksAreNotCounted) {
  rig.Store("Settings", "AutoSecs", "120");
  rig.Start();
  RunChecks(1);
  const os::WindowHandle companion = rig.machine.OpenWindow("ThunderRT6Main", "Kestrin Launcher (Working)");
  RunChecks(5);
  EXPECT_EQ(Count(), "none");
  rig.machine.CloseWindow(companion);
  RunChecks(1);
  EXPECT_EQ(Count(), "1") << "the one earlier tick still counts";
}

TEST_F(AutomaticRelease, IntervalOf60WaitsWhileTheCompanionWorks) {
  rig.Store("Settings", "AutoSecs", "60");
  rig.Start();
  const os::WindowHandle companion = rig.machine.OpenWindow("ThunderRT6Main", "Kestrin Launcher (Working)");
  RunChecks(3);
  EXPECT_EQ(Count(), "none");
  rig.machine.CloseWindow(companion);
  RunChecks(1);
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticRelease, IdleCompanionDisturbsNothing) {
  rig.Start();
  rig.machine.OpenWindow("ThunderRT6Main", "Kestrin Launcher");
  rig.machine.OpenWindow("ThunderRT6Form", "Kestrin Launcher (Working)");
  RunChecks(1);
  EXPECT_EQ(Count(), "1");
}

class ReleaseEndedInABox : public AutomaticRelease, public testing::WithParamInterface<double> {};

TEST_P(ReleaseEndedInABox, NeitherCountsNorTakesMemoryAgain) {
  rig.Store("Settings", "TryTimes", "3");
  rig.Start();
  rig.machine.OnPump([this](int pump) {
    if (pump != 8000) return;
    rig.machine.SetMemory(64 * kMegabyte, static_cast<std::uint32_t>(GetParam() * 1024000), 0x7FFFFFFFU,
                          0xFFFFFFFEU);  // the check before the second attempt reports an error
  });
  rig.machine.WhileBoxIsOpen([this] { rig.program->EndSession(); });
  RunChecks(1);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf24Mb});
  EXPECT_EQ(Count(), "none");
  EXPECT_TRUE(CounterText().starts_with("Auto Detection feature has detected and released RAM 0 times"))
      << CounterText();
}

INSTANTIATE_TEST_SUITE_P(AvailableMb, ReleaseEndedInABox, testing::Values(5, 24.01));

TEST_F(AutomaticRelease, EveryAttemptChecksAgainAndStopsWhenEnoughIsFree) {
  rig.Store("Settings", "TryTimes", "3");
  rig.Start();
  rig.machine.OnPump([this](int pump) {
    if (pump == 12000) rig.SetAvailableMb(24.01);
  });
  RunChecks(1);
  EXPECT_EQ(Allocations(), (Sizes{kBytesOf24Mb, kBytesOf24Mb}));
  EXPECT_EQ(Count(), "1") << "any number of attempts counts as one release";
}

TEST_F(AutomaticRelease, AmountIsReadAgainAtEveryAttempt) {
  rig.Store("Settings", "TryTimes", "2");
  rig.Start();
  rig.machine.OnPump([this](int pump) {
    if (pump == 1) base::Ignore(rig.program->AutomaticScreen().List4.SetSelectedIndex(0));
  });
  RunChecks(1);
  EXPECT_EQ(Allocations(), (Sizes{kBytesOf24Mb, 12 * 1040000 + 1}));
}

TEST_F(AutomaticRelease, AmountBelowTheAvailableMemoryReleasesNothingButCounts) {
  rig.Store("Settings", "MinRAM", "30");
  rig.SetAvailableMb(25);
  rig.Start();
  RunChecks(1);
  EXPECT_EQ(Allocations(), Sizes{});
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(rig.NewestBarPx(), kFullBarPx);
}

TEST_F(AutomaticRelease, AmountEqualToTheAvailableMemoryIsReleased) {
  rig.Store("Settings", "MinRAM", "30");
  rig.SetAvailableMb(24);
  rig.Start();
  RunChecks(1);
  EXPECT_EQ(Allocations(), Sizes{kBytesOf24Mb});
}

TEST_F(AutomaticRelease, NoAmountSelectedReleasesNothingButCounts) {
  rig.Store("Settings", "AutoQuondix", "25");
  rig.Start();
  RunChecks(1);
  EXPECT_EQ(Allocations(), Sizes{});
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticRelease, LackOfMemoryShowsTheWarningAndIsNotCounted) {
  rig.Store("Settings", "TryTimes", "3");
  rig.machine.LimitAllocatableBytes(1000);
  rig.Start();
  RunChecks(1);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U) << "the remaining attempts are dropped";
  EXPECT_EQ(rig.machine.Boxes()[0].text, kWarning);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(Count(), "none");
  EXPECT_EQ(rig.machine.OutstandingBlocks(), Sizes{});
}

TEST_F(AutomaticRelease, LackOfMemoryIsSilentWithTheWarningTicked) {
  rig.Store("Settings", "Warnings", "1");
  rig.machine.LimitAllocatableBytes(1000);
  rig.Start();
  RunChecks(1);
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(Count(), "none");
}

TEST_F(AutomaticRelease, CloseInTheMiddleCountsNothingAndKeepsNoBlock) {
  rig.Start();
  rig.machine.OnPump([this](int pump) {
    if (pump == 100) rig.program->Form().Unload();
  });
  RunChecks(1);
  EXPECT_EQ(Count(), "none");
  EXPECT_EQ(rig.machine.OutstandingBlocks(), Sizes{});
  EXPECT_LE(rig.machine.PumpCount(), 100);
}

TEST_F(AutomaticRelease, ChecksDueDuringAReleaseAreLost) {
  rig.Start();
  rig.machine.OnPump([this](int pump) {
    if (pump == 1) rig.AdvanceMs(5 * 20000);
  });
  RunChecks(1);
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticRelease, TwoTimersFireDuringARelease) {
  rig.Store("Settings", "TimeActive", "1");
  rig.Store("Settings", "TimeQuondix", "40");
  rig.Store("Settings", "CPUTimeActive", "0");
  rig.Store("Startup", "TimeMinutes", "5");
  rig.Store("Startup", "StartupTime", "240");
  rig.Store("Startup", "StartupRAM", "16");
  rig.Start();
  rig.machine.OnPump([this](int pump) {
    if (pump == 1) rig.AdvanceMs(5 * kMinuteMs);
  });
  rig.AdvanceMs(20000);
  // The start-up release began and ended inside the automatic one, the timed one ended after it.
  EXPECT_EQ(Allocations(), (Sizes{kBytesOf24Mb, 16 * 1040000 + 1, 40 * 1040000 + 1}));
  EXPECT_EQ(Count(), "1");
  EXPECT_EQ(rig.machine.OutstandingBlocks(), Sizes{});
  EXPECT_EQ(rig.program->TimeIntervalsScreen().lblNextRelease.Caption(),
            "Next Release of RAM is due in 5 minutes");
}

TEST_F(AutomaticRelease, ShorterIntervalDuringACountLetsItPassItsEnd) {
  rig.Store("Settings", "AutoSecs", "300");
  rig.Start();
  RunChecks(3);
  EXPECT_TRUE(rig.program->AutomaticScreen().List2.SetSelectedIndex(5).Ok());  // 120
  RunChecks(100);
  EXPECT_EQ(Count(), "none");
}

TEST_F(AutomaticRelease, IntervalOf60DuringACountChecksEveryMinuteFromNowOn) {
  rig.Store("Settings", "AutoSecs", "300");
  rig.Start();
  RunChecks(3);
  EXPECT_TRUE(rig.program->AutomaticScreen().List2.SetSelectedIndex(4).Ok());
  EXPECT_EQ(rig.program->AutomaticScreen().List2.SelectedText(), "60");
  RunChecks(2);
  EXPECT_EQ(Count(), "2");
}

TEST_F(AutomaticRelease, CountThatPassedItsEndFinallyOverflows) {
  rig.Store("Settings", "AutoSecs", "300");
  rig.Start();
  RunChecks(3);
  EXPECT_TRUE(rig.program->AutomaticScreen().List2.SetSelectedIndex(5).Ok());
  RunChecks(32767 - 3);
  EXPECT_TRUE(rig.machine.Boxes().empty());
  RunChecks(1);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(AutomaticRelease, CounterAtItsLimitOverflowsUntrapped) {
  rig.Store("Settings", "CounterValue", "2147483646");
  rig.Start();
  RunChecks(1);
  EXPECT_EQ(Count(), "2147483647");
  RunChecks(1);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '6':\r\n\r\nOverflow");
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(Count(), "2147483647");
}

TEST_F(AutomaticRelease, PauseStopsItAndResumeStartsAFullInterval) {
  rig.Start();
  rig.AdvanceMs(15000);
  rig.program->QuondixScreen().Command3.Press();
  rig.AdvanceMs(10 * kMinuteMs);
  EXPECT_EQ(Count(), "none");
  rig.program->QuondixScreen().Command3.Press();
  rig.AdvanceMs(19999);
  EXPECT_EQ(Count(), "none");
  rig.AdvanceMs(1);
  EXPECT_EQ(Count(), "1");
}

TEST_F(AutomaticRelease, ResetRestartsTheCountFromToday) {
  rig.Store("Settings", "CounterDate", "40000.25");
  rig.Store("Settings", "CounterValue", "41");
  rig.Start();
  RunChecks(1);
  EXPECT_EQ(CounterText(),
            "Automatic feature has detected and released RAM 42 times since Q-DIX was started on Monday, "
            "July 6, 2009");
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  rig.program->AutomaticScreen().Command7.Press();
  EXPECT_EQ(Count(), "0");
  EXPECT_EQ(rig.Stored("Settings", "CounterDate"), "46347");
  EXPECT_EQ(CounterText(),
            "Automatic feature has detected and released RAM 0 times since Q-DIX was started on Saturday, "
            "November 21, 2026");
}

}  // namespace
}  // namespace qdix::tests
