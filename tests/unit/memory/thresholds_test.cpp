// Defaults by memory size, and limits of the processor load that do not apply.
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

/// Tests both ends of every band, on machines with exactly that many megabytes of 1,024,000 bytes.
TEST(DefaultThreshold, FollowsTheWholeMegabytesOfTheMemory) {
  std::vector<std::pair<double, std::string>> thresholds;
  for (const double mb :
       {1.0, 32.0, 32.99, 33.0, 65.0, 65.99, 66.0, 97.0, 97.99, 98.0, 131.0, 131.99, 132.0, 500.0}) {
    ProgramRig rig(MemoryBytes(mb));
    rig.SetHasRunBefore();
    thresholds.emplace_back(mb, rig.Start().AutomaticScreen().Text2.Text());
  }
  EXPECT_EQ(thresholds, (std::vector<std::pair<double, std::string>>{{1.0, "1"},
                                                                     {32.0, "1"},
                                                                     {32.99, "1"},
                                                                     {33.0, "2"},
                                                                     {65.0, "2"},
                                                                     {65.99, "2"},
                                                                     {66.0, "4"},
                                                                     {97.0, "4"},
                                                                     {97.99, "4"},
                                                                     {98.0, "6"},
                                                                     {131.0, "6"},
                                                                     {131.99, "6"},
                                                                     {132.0, "8"},
                                                                     {500.0, "8"}}));
}

/// A machine whose processor is always busy. Both limits are stored, and neither is ticked.
class ClearedLimits : public testing::Test {
 protected:
  ClearedLimits() {
    rig.SetHasRunBefore();
    for (const char* const key : {"CPUAutoActive", "CPUTimeActive"}) rig.Store("Settings", key, "0");
    for (const char* const key : {"AutoCPU", "TimeCPU"}) rig.Store("Settings", key, "5");
    rig.Store("Startup", "StartupTime", "32000");
    rig.machine.SetCpuLoad(100);
  }
  ProgramRig rig;
};

TEST_F(ClearedLimits, LetTheAutomaticReleaseRunOnABusyMachine) {
  rig.Store("Settings", "AutoActive", "1");
  rig.Start();
  rig.SetAvailableMb(1);
  rig.AdvanceMs(20000);
  ASSERT_EQ(rig.program->CpuUsage().AverageCpuUsage(), 100);
  EXPECT_EQ(rig.machine.AllAllocations(), (std::vector<std::uint32_t>{33280001}));
  EXPECT_EQ(rig.Stored("Settings", "CounterValue"), "1");
}

TEST_F(ClearedLimits, LetTheTimedReleaseRunOnABusyMachine) {
  rig.Store("Settings", "TimeActive", "1");
  rig.Store("Startup", "TimeMinutes", "5");
  rig.Start();
  rig.SetAvailableMb(1);
  rig.AdvanceMs(5 * kMinuteMs);
  ASSERT_EQ(rig.program->CpuUsage().AverageCpuUsage(), 100);
  EXPECT_EQ(rig.machine.AllAllocations(), (std::vector<std::uint32_t>{33280001}));
  EXPECT_FALSE(rig.program->MainWindow().Timer5.Enabled());
}

}  // namespace
}  // namespace qdix::tests
