// The memory figures and how they are shown.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using os::kMbOk;

constexpr const char* kReportBeginning = "An error has occurred. The following info may help debug.";

TEST(MemoryStatus, TotalIsCountedInMegabytesOf1024000BytesWithFractions) {
  ProgramRig rig(64 * kMegabyte);
  EXPECT_DOUBLE_EQ(rig.Start().MemoryMonitor().TotalRAM(), 67108864 / 1.024 / 1000000);
  EXPECT_EQ(rig.program->MemoryMonitor().TotalRamMb(), 66);  // 65.536 rounded
}

TEST(MemoryStatus, TotalOfTwoGigabytesOrMoreReadsNegative) {
  ProgramRig rig(64 * kMegabyte);
  rig.machine.SetMemory(0x80000000U, 1000, 1000, 1000);
  EXPECT_DOUBLE_EQ(rig.Start().MemoryMonitor().TotalRAM(), -2147483648.0 / 1.024 / 1000000);
  EXPECT_EQ(rig.program->MemoryMonitor().TotalRamMb(), -2097);
}

TEST(MemoryStatus, SwapFileTotalIsDividedAgainBy1024) {
  ProgramRig rig;
  rig.machine.SetMemory(64 * kMegabyte, 32 * kMegabyte, 200 * kMegabyte, 100 * kMegabyte);
  EXPECT_DOUBLE_EQ(rig.Start().MemoryMonitor().TotalSwapFile(), 200.0 * kMegabyte / 1.024 / 1000000 / 1024);
}

TEST(MemoryStatus, TotalsAreShownOnceAtLoad) {
  ProgramRig rig;
  rig.machine.SetMemory(64 * kMegabyte, 32 * kMegabyte, 1500 * kMegabyte, 100 * kMegabyte);
  auto& screen = rig.Start().QuondixScreen();
  EXPECT_EQ(screen.lblTotalMem.Caption(), "Total Physical Memory:  65,536 KB");
  EXPECT_EQ(screen.lblSwapfile.Caption(), "Virtual Memory (Swapfile) :  1,500 MB");
}

TEST(MemoryStatus, ZeroTotalsShowNoNumber) {
  ProgramRig rig;
  rig.machine.SetMemory(0, 0, 0, 0);
  auto& screen = rig.Start().QuondixScreen();
  EXPECT_EQ(screen.lblTotalMem.Caption(), "Total Physical Memory:   KB");
  EXPECT_EQ(screen.lblSwapfile.Caption(), "Virtual Memory (Swapfile) :   MB");
}

TEST(MemoryStatus, AvailableMemoryHasTwoDecimals) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1000);
  EXPECT_DOUBLE_EQ(rig.program->MemoryMonitor().MemStatus(), 23.45);  // 23.4495...
}

TEST(MemoryStatus, AvailableAboveTotalIsShownDividedBy102Point4) {
  ProgramRig rig;
  rig.Start();  // total 66
  rig.machine.SetMemory(64 * kMegabyte, 512 * kMegabyte, 1000, 1000);
  EXPECT_DOUBLE_EQ(rig.program->MemoryMonitor().MemStatus(), 5);  // 524.29 / 102.4 = 5.12
  rig.SetAvailableMb(1793);
  EXPECT_DOUBLE_EQ(rig.program->MemoryMonitor().MemStatus(), 18);  // 17.51
  rig.SetAvailableMb(1791);
  EXPECT_DOUBLE_EQ(rig.program->MemoryMonitor().MemStatus(), 17);  // 17.49
}

TEST(MemoryStatus, AvailableEqualToTotalIsLeftAlone) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 66 * 1024000, 1000, 1000);
  EXPECT_DOUBLE_EQ(rig.program->MemoryMonitor().MemStatus(), 66);
}

TEST(MemoryStatus, SwapFileInUseIsHalvedRoundedAndShownDoubled) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 32 * kMegabyte, 1000, 750);  // 25 % used: 12.5 rounds to 12
  (void)rig.program->MemoryMonitor().MemStatus();
  EXPECT_EQ(rig.program->QuondixScreen().Gauge2.Value(), 12);
  EXPECT_EQ(rig.program->QuondixScreen().lblSwapfileUsed.Caption(), "24% Used");
}

TEST(MemoryStatus, WithoutSwapFileTheGaugeKeepsItsValueAndTheLabelShowsIt) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 32 * kMegabyte, 1000, 400);
  (void)rig.program->MemoryMonitor().MemStatus();
  rig.machine.SetMemory(64 * kMegabyte, 32 * kMegabyte, 0, 0);
  (void)rig.program->MemoryMonitor().MemStatus();
  EXPECT_EQ(rig.program->QuondixScreen().Gauge2.Value(), 30);
  EXPECT_EQ(rig.program->QuondixScreen().lblSwapfileUsed.Caption(), "60% Used");
  EXPECT_TRUE(rig.machine.Boxes().empty()) << "a missing swap file is not an error";
}

TEST(MemoryStatus, PercentagesShownAreAlwaysEven) {
  ProgramRig rig;
  rig.Start();
  for (std::uint32_t available = 0; available <= 64; ++available) {
    rig.machine.SetMemory(64 * kMegabyte, available * kMegabyte, 64, available);
    rig.AdvanceMs(750);
    for (const auto* label :
         {&rig.program->QuondixScreen().lblPercentFree, &rig.program->QuondixScreen().lblSwapfileUsed}) {
      const std::string& text = label->Caption();
      const char last_digit = text[text.find('%') - 1];
      EXPECT_EQ((last_digit - '0') % 2, 0) << text;
    }
  }
}

TEST(MemoryStatus, SubtractionThatOverflowsIsReportedOncePerRun) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 0x7FFFFFFFU, 0xFFFFFFFEU);  // total - (-2) overflows
  EXPECT_DOUBLE_EQ(rig.program->MemoryMonitor().MemStatus(), 23.45);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            std::string(kReportBeginning) + "\r\nAvailable RAM : 23.45\r\nVM : 100\r\nTotal Ram : 66");
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, kMbOk);
  EXPECT_EQ(rig.program->QuondixScreen().lblSwapfileUsed.Caption(), "0% Used")
      << "execution continues after the failed statement";
  for (int tick = 0; tick < 100; ++tick) rig.AdvanceMs(750);
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(MemoryStatus, ErrorThatRecursWhileItsBoxIsOpenShowsNoSecondBox) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 0x7FFFFFFFU, 0xFFFFFFFEU);
  rig.machine.WhileBoxIsOpen([&] { rig.AdvanceMs(7500); });
  (void)rig.program->MemoryMonitor().MemStatus();
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(MemoryStatus, GaugeLevelOutsideItsRangeIsReportedLikeAnyError) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1100);  // the used amount is negative
  (void)rig.program->MemoryMonitor().MemStatus();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            std::string(kReportBeginning) + "\r\nAvailable RAM : 23.45\r\nVM : -10\r\nTotal Ram : 66");
}

TEST(MemoryDisplay, SwapFileGaugeShowsHalfThePercentageRounded) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 388);  // 61.2 % are used
  rig.AdvanceMs(750);
  EXPECT_EQ(rig.program->QuondixScreen().Gauge2.Value(), 31);
  EXPECT_EQ(rig.program->QuondixScreen().lblSwapfileUsed.Caption(), "62% Used");
}

TEST(MemoryDisplay, TickShowsCaptionGaugeAndPercentage) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1000);
  rig.AdvanceMs(750);
  EXPECT_EQ(rig.program->Form().Caption(), "23.45 MB   Q-DIX");
  EXPECT_EQ(rig.program->QuondixScreen().Gauge1.Value(), 17);  // 23.45 / 66 * 50 = 17.77
  EXPECT_EQ(rig.program->QuondixScreen().lblPercentFree.Caption(), "34%  Available RAM");
}

TEST(MemoryDisplay, AllMemoryAvailableLightsTheWholeGauge) {
  ProgramRig rig;
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 66 * 1024000, 1000, 1000);
  rig.AdvanceMs(750);
  EXPECT_EQ(rig.program->QuondixScreen().Gauge1.Value(), 50);
  EXPECT_EQ(rig.program->QuondixScreen().lblPercentFree.Caption(), "100%  Available RAM");
}

struct Misread {
  const char* what;
  std::uint32_t total;
  std::uint32_t available;
  const char* caption;
};

class MisreadMemory : public testing::TestWithParam<Misread> {};

TEST_P(MisreadMemory, IsReportedInTheCaptionAndTheProgramContinues) {
  ProgramRig rig;
  rig.machine.SetMemory(GetParam().total, GetParam().available, 1000, 1000);
  rig.Start();
  rig.AdvanceMs(750);
  EXPECT_EQ(
      rig.program->Form().Caption(),
      std::string(GetParam().caption) + " MB   Q-DIX - This reading is Incorrect. See our support page.");
  EXPECT_EQ(rig.program->QuondixScreen().Gauge1.Value(), 0);
  EXPECT_FALSE(rig.program->Form().Unloaded());
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_P(MisreadMemory, EndsTheTickWithoutPercentageAndReadingOfTheProcessor) {
  ProgramRig rig;
  rig.machine.SetMemory(GetParam().total, GetParam().available, 1000, 1000);
  rig.machine.SetCpuLoad(50);
  rig.Start();
  rig.machine.SetCpuLoad(90);
  const std::string percent = rig.program->QuondixScreen().lblPercentFree.Caption();
  const std::string usage = rig.program->QuondixScreen().lblUSAGE.Caption();
  const std::int32_t average = rig.program->CpuUsage().AverageCpuUsage();
  const std::size_t before = rig.machine.QueriedValueNames().size();
  rig.AdvanceMs(8 * kRefreshMs);
  EXPECT_EQ(rig.machine.QueriedValueNames().size(), before);
  EXPECT_EQ(rig.program->CpuUsage().AverageCpuUsage(), average);
  EXPECT_EQ(rig.program->QuondixScreen().lblUSAGE.Caption(), usage);
  EXPECT_EQ(rig.NewestBarPx(), 0);
  EXPECT_EQ(rig.program->QuondixScreen().lblPercentFree.Caption(), percent);
}

INSTANTIATE_TEST_SUITE_P(
    Totals, MisreadMemory,
    testing::Values(Misread{"zero by zero", 0, 0, "0"}, Misread{"division by zero", 0, 512 * kMegabyte, "5"},
                    Misread{"negative available", 64 * kMegabyte, 0xF0000000U, "-262.14"}));

TEST(MemoryDisplay, TickReadsTheMemoryAndThenTheProcessorLoad) {
  ProgramRig rig;
  rig.machine.SetCpuLoad(50);
  rig.Start();
  const std::size_t before = rig.machine.Calls().size();
  rig.AdvanceMs(kRefreshMs);
  const auto first = rig.machine.Calls().begin() + static_cast<std::ptrdiff_t>(before);
  const auto memory = std::find(first, rig.machine.Calls().end(), "GlobalMemoryStatus()");
  const auto load = std::find_if(first, rig.machine.Calls().end(),
                                 [](const std::string& call) { return call.starts_with("RegOpenKeyExA"); });
  ASSERT_NE(memory, rig.machine.Calls().end());
  ASSERT_NE(load, rig.machine.Calls().end());
  EXPECT_LT(memory, load);
}

TEST(MemoryDisplay, TickEndedByAnErrorReportReadsNoProcessorLoad) {
  ProgramRig rig;
  rig.machine.SetCpuLoad(50);
  rig.Start();
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 0x7FFFFFFFU, 0xFFFFFFFEU);
  std::size_t at_the_end = 0;
  rig.machine.WhileBoxIsOpen([&] {
    rig.program->EndSession();
    at_the_end = rig.machine.Calls().size();
  });
  rig.AdvanceMs(kRefreshMs);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Calls().size(), at_the_end);
  EXPECT_EQ(rig.program->Form().Caption(), "Q-DIX");
}

TEST(MemoryDisplay, TickContinuesEvery750MsWhileTheWindowIsHidden) {
  ProgramRig rig;
  rig.Store("Startup", "StartDisplay", "3");
  rig.Start();
  EXPECT_FALSE(rig.program->Form().Shown());
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1000);
  rig.AdvanceMs(749);
  EXPECT_EQ(rig.program->Form().Caption(), "Q-DIX");
  rig.AdvanceMs(1);
  EXPECT_EQ(rig.program->Form().Caption(), "23.45 MB   Q-DIX");
}

}  // namespace
}  // namespace qdix::tests
