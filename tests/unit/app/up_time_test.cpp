// The label that shows how long the system has been running.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr std::int64_t kHourMs = 60 * kMinuteMs;

struct Running {
  std::int64_t ms;
  const char* text;
};
class UpTime : public testing::TestWithParam<Running> {};

TEST_P(UpTime, CutsTheHoursAndRoundsTheMinutes) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.machine.AdvanceMs(GetParam().ms);
  EXPECT_EQ(rig.Start().StartupScreen().lblTimeRunning.Caption(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Values, UpTime,
    testing::Values(Running{0, "Your system has been running for 0 hour(s) and 0 minutes."},
                    Running{29999, "Your system has been running for 0 hour(s) and 0 minutes."},
                    Running{30000, "Your system has been running for 0 hour(s) and 0 minutes."},
                    Running{90000, "Your system has been running for 0 hour(s) and 2 minutes."},
                    Running{150000, "Your system has been running for 0 hour(s) and 2 minutes."},
                    Running{kHourMs - 30001, "Your system has been running for 0 hour(s) and 59 minutes."},
                    Running{kHourMs - 30000, "Your system has been running for 0 hour(s) and 0 minutes."},
                    Running{kHourMs, "Your system has been running for 1 hour(s) and 0 minutes."},
                    Running{25 * kHourMs + 61 * kMinuteMs,
                            "Your system has been running for 26 hour(s) and 1 minutes."},
                    // Above half of the 32-bit range, where a signed count would be negative.
                    Running{4294967295, "Your system has been running for 1193 hour(s) and 3 minutes."}));

TEST(UpTimeLabel, FollowsEvery65Seconds) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  auto& label = rig.Start().StartupScreen().lblTimeRunning;
  rig.machine.AdvanceMs(2 * kMinuteMs);
  rig.AdvanceMs(64999);
  EXPECT_EQ(label.Caption(), "Your system has been running for 0 hour(s) and 0 minutes.");
  rig.AdvanceMs(1);
  EXPECT_EQ(label.Caption(), "Your system has been running for 0 hour(s) and 2 minutes.");
}

TEST(UpTimeLabel, KeepsRunningWhilePaused) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  auto& label = rig.Start().StartupScreen().lblTimeRunning;
  rig.program->QuondixScreen().Command3.Press();
  rig.machine.AdvanceMs(2 * kMinuteMs);
  rig.AdvanceMs(65000);
  EXPECT_EQ(label.Caption(), "Your system has been running for 0 hour(s) and 2 minutes.");
}

TEST(UpTimeLabel, StartsAgainWhenTheTickCountWraps) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.machine.AdvanceMs(4294967296 + kHourMs);
  EXPECT_EQ(rig.Start().StartupScreen().lblTimeRunning.Caption(),
            "Your system has been running for 1 hour(s) and 0 minutes.");
}

}  // namespace
}  // namespace qdix::tests
