// A whole day of automatic, timed, delayed and paused operation, with the exact time of every release.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr std::int64_t kSecondMs = 1000;

struct Taken {
  std::int64_t at_seconds;
  std::uint32_t megabytes;
  bool operator==(const Taken&) const = default;
};

void PrintTo(const Taken& taken, std::ostream* out) {
  *out << taken.at_seconds / 3600 << ":" << taken.at_seconds / 60 % 60 << ":" << taken.at_seconds % 60 << " "
       << taken.megabytes << " MB";
}

constexpr std::int64_t At(int hour, int minute, int second = 0) { return (hour * 60 + minute) * 60 + second; }

constexpr std::uint32_t kStartup = 16;
constexpr std::uint32_t kAutomatic = 24;
constexpr std::uint32_t kTimed = 40;

class DayOfReleases : public testing::Test {
 protected:
  void SetUp() override {
    rig.SetHasRunBefore();
    rig.Store("Settings", "AutoActive", "1");
    rig.Store("Settings", "AutoSecs", "300");
    rig.Store("Settings", "MinRAM", "8");
    rig.Store("Settings", "AutoQuondix", std::to_string(kAutomatic));
    rig.Store("Settings", "TimeActive", "1");
    rig.Store("Settings", "TimeUnit", "2");
    rig.Store("Startup", "TimeHours", "6");
    rig.Store("Settings", "TimeQuondix", std::to_string(kTimed));
    rig.Store("Startup", "StartupRAM", std::to_string(kStartup));
    rig.Store("Startup", "StartupTime", "90");
    rig.SetAvailableMb(20);
    rig.machine.SetCpuLoad(10);
    rig.machine.OnPump([this](int /*pump*/) { NoteRelease(); });
    rig.Start();
    rig.RemoveGraph();
  }
  void NoteRelease() {
    const auto& sizes = rig.machine.AllAllocations();
    for (; noted < sizes.size(); ++noted) {
      releases.push_back({rig.timers.NowMs() / kSecondMs, (sizes[noted] - 1) / 1040000});
    }
  }
  void RunUntil(std::int64_t seconds) { rig.AdvanceMs(seconds * kSecondMs - rig.timers.NowMs()); }

  ProgramRig rig;
  std::vector<Taken> releases;
  std::size_t noted = 0;
};

TEST_F(DayOfReleases, HappenAtTheirExactTimes) {
  RunUntil(At(1, 59));
  rig.SetAvailableMb(5);
  RunUntil(At(2, 12));
  rig.SetAvailableMb(20);
  RunUntil(At(11, 55, 30));
  rig.machine.SetCpuLoad(100);
  rig.SetAvailableMb(5);  // low memory on a busy machine: also held back
  RunUntil(At(12, 3, 30));
  rig.machine.SetCpuLoad(10);
  rig.SetAvailableMb(20);
  RunUntil(At(18, 10));
  rig.program->QuondixScreen().Command3.Press();
  rig.SetAvailableMb(5);
  RunUntil(At(19, 10));
  rig.SetAvailableMb(20);
  rig.program->QuondixScreen().Command3.Press();
  RunUntil(At(24, 0));

  EXPECT_EQ(releases, (std::vector<Taken>{
                          {At(0, 1, 30), kStartup},
                          {At(2, 0), kAutomatic},
                          {At(2, 5), kAutomatic},
                          {At(2, 10), kAutomatic},
                          {At(6, 0), kTimed},
                          // Eight minutes were not counted, and the retry at 12:03:40 counted one extra.
                          {At(12, 7), kTimed},
                          {At(18, 7), kTimed},
                      }));
  EXPECT_EQ(rig.Stored("Settings", "CounterValue"), "3");
  // Three minutes before the pause, 290 after it.
  EXPECT_EQ(rig.program->TimeIntervalsScreen().lblNextRelease.Caption(),
            "Next Release of RAM is due in 67 minutes");
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(rig.machine.OutstandingBlocks(), std::vector<std::uint32_t>{});
}

}  // namespace
}  // namespace qdix::tests
