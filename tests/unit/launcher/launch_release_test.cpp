// The release before a launch: its share, passes, settings and failures.
#include <gtest/gtest.h>

#include "launcher/launcher_file.h"
#include "memory/memory_release.h"
#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kListPath = "C:\\Program Files\\QDIX\\launcher.dat";
constexpr int kPumpsOfAPass = 2 * memory::MemoryRelease::kPumpsPerPhase;

/// A machine with this much memory, in megabytes of 1,024,000 bytes, and one program in the list.
class LaunchRig : public TuningRig {
 public:
  explicit LaunchRig(double ram_mb = 64) : TuningRig(ram_mb) {
    machine.WriteFile(kListPath, launcher::RecordBytes({"Calculator", "calc", ""}));
    machine.AddProgram("calc");
  }
  screens::LauncherScreen& Tab() { return program->LauncherScreen(); }
  void StartLauncher() { StartAt(screens::kLauncherTab); }
  /// Starts the program in the list, without the graph, because there are many pumps.
  void Launch() {
    RemoveGraph();
    Tab().List5.DoubleClick(0);
  }
};

struct Share {
  const char* stored;
  double ram_mb;
  std::uint32_t bytes;
};

class LaunchShare : public testing::TestWithParam<Share> {};

TEST_P(LaunchShare, IsAShareOfTheMemoryUpTo250) {
  LaunchRig rig(GetParam().ram_mb);
  rig.Store("Settings", "Launcher RAM", GetParam().stored);
  rig.StartLauncher();
  rig.Launch();
  EXPECT_EQ(rig.machine.AllAllocations(), std::vector<std::uint32_t>{GetParam().bytes});
  EXPECT_EQ(rig.machine.PumpCount(), kPumpsOfAPass);
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
  EXPECT_EQ(rig.machine.StartedPrograms(), std::vector<std::string>{"calc"});
}

INSTANTIATE_TEST_SUITE_P(Table, LaunchShare,
                         testing::Values(Share{"1", 64, 21 * 1040000 + 1}, Share{"2", 64, 32 * 1040000 + 1},
                                         Share{"3", 64, 42 * 1040000 + 1}, Share{"4", 64, 1},
                                         Share{"7", 64, 1}, Share{"3", 1000, 250 * 1040000 + 1},
                                         Share{"2", 501, 250 * 1040000 + 1},
                                         Share{"2", 499.9, 249 * 1040000 + 1}, Share{"1", 8, 2 * 1040000 + 1},
                                         Share{"1", 128, 42 * 1040000 + 1}, Share{"2", 128, 64 * 1040000 + 1},
                                         Share{"3", 128, 84 * 1040000 + 1}));

struct StoredPasses {
  const char* stored;
  int passes;
};

class LaunchPasses : public testing::TestWithParam<StoredPasses> {};

TEST_P(LaunchPasses, AreWhatIsStored) {
  LaunchRig rig;
  rig.Store("Settings", "Launcher Retry", GetParam().stored);
  rig.Store("Settings", "Launcher RAM", "4");
  rig.StartLauncher();
  for (int index = 0; index < 5; ++index) {
    EXPECT_EQ(rig.Tab().Slider_6[static_cast<std::size_t>(index)].Selected(), index + 1 == GetParam().passes);
  }
  rig.Launch();
  EXPECT_EQ(static_cast<int>(rig.machine.AllAllocations().size()), GetParam().passes);
  EXPECT_EQ(rig.machine.PumpCount(), GetParam().passes * kPumpsOfAPass);
  EXPECT_EQ(rig.machine.StartedPrograms(), std::vector<std::string>{"calc"});
}

INSTANTIATE_TEST_SUITE_P(Table, LaunchPasses,
                         testing::Values(StoredPasses{"1", 1}, StoredPasses{"2", 2}, StoredPasses{"3", 3},
                                         StoredPasses{"4", 4}, StoredPasses{"5", 5}, StoredPasses{"0", 0},
                                         StoredPasses{"6", 0}, StoredPasses{"", 0}, StoredPasses{"many", 0}));

TEST(LaunchSettings, DefaultsAreAThirdAndOnePass) {
  LaunchRig rig;
  rig.StartLauncher();
  EXPECT_TRUE(rig.Tab().Option9.Selected());
  EXPECT_TRUE(rig.Tab().Slider_6[0].Selected());
}

TEST(LaunchSettings, StoredShareSelectsItsOption) {
  for (const auto& [stored, name] :
       {std::pair("1", "Option9"), std::pair("2", "Option8"), std::pair("3", "Option7"),
        std::pair("4", "Option6"), std::pair("7", "Option6"), std::pair("", "Option6")}) {
    LaunchRig rig;
    rig.Store("Settings", "Launcher RAM", stored);
    rig.StartLauncher();
    for (const ui::Control* option : rig.Tab().FrameLauncher.Children()) {
      EXPECT_EQ(static_cast<const ui::OptionButton*>(option)->Selected(), option->Name() == name)
          << stored << ": " << option->Name();
    }
  }
}

TEST(LaunchSettings, ChoicesAreStoredAtOnce) {
  LaunchRig rig;
  rig.StartLauncher();
  const auto stored_share = [&](ui::OptionButton& option) {
    option.Press();
    return rig.Stored("Settings", "Launcher RAM");
  };
  EXPECT_EQ(stored_share(rig.Tab().Option8), "2");
  EXPECT_EQ(stored_share(rig.Tab().Option7), "3");
  EXPECT_EQ(stored_share(rig.Tab().Option6), "4");
  EXPECT_EQ(stored_share(rig.Tab().Option9), "1");
  for (const int position : {4, 2, 0, 1, 3}) {
    rig.Tab().Slider_6[static_cast<std::size_t>(position)].Press();
    EXPECT_EQ(rig.Stored("Settings", "Launcher Retry"), std::to_string(position + 1));
  }
}

TEST(LaunchSettings, TextsOfTheTab) {
  LaunchRig rig;
  rig.StartLauncher();
  EXPECT_EQ(rig.Tab().Option9.Caption(), "33% of My Total RAM   (Conservative)");
  EXPECT_EQ(rig.Tab().Option8.Caption(), "50%  of My Total RAM  (Normal)");
  EXPECT_EQ(rig.Tab().Option7.Caption(), "66% of My Total RAM   (Aggressive)");
  EXPECT_EQ(rig.Tab().Option6.Caption(), "Don't Free Up Any RAM");
  EXPECT_EQ(rig.Tab().Command15.Caption(), "Configure Program List");
  EXPECT_EQ(rig.Tab().List5.ToolTip(), "Double click a program to launch");
}

TEST(LaunchRelease, AmountWithoutAShareStaysThatOfThePreviousPass) {
  LaunchRig rig;
  rig.Store("Settings", "Launcher Retry", "2");
  rig.StartLauncher();
  rig.machine.OnPump([&](int number) {
    if (number == 1) rig.Tab().Option6.Press();
  });
  rig.Launch();
  EXPECT_EQ(rig.machine.AllAllocations(), (std::vector<std::uint32_t>(2, 21 * 1040000 + 1)));
}

TEST(LaunchRelease, LackOfMemoryIsReportedEndsThePassesAndTheProgramStarts) {
  LaunchRig rig;
  rig.Store("Settings", "Launcher Retry", "3");
  rig.StartLauncher();
  rig.machine.LimitAllocatableBytes(1000000);
  rig.Launch();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, memory::MemoryRelease::kLowResourcesWarning);
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk);
  EXPECT_EQ(rig.machine.PumpCount(), 0);
  EXPECT_EQ(rig.machine.StartedPrograms(), std::vector<std::string>{"calc"});
}

TEST(LaunchRelease, WarningIsSilencedByTheResourcesBox) {
  LaunchRig rig;
  rig.Store("Settings", "Warnings", "1");
  rig.StartLauncher();
  rig.machine.LimitAllocatableBytes(1000000);
  rig.Launch();
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(rig.machine.StartedPrograms(), std::vector<std::string>{"calc"});
}

// Totals of 2 GB and more read as negative, and no block can have a negative size.
TEST(LaunchRelease, NegativeMemoryIsReportedByItsOwnError) {
  LaunchRig rig;
  rig.StartLauncher();
  rig.machine.SetMemory(0xF0000000U, 0x10000000U, 0xF0000000U, 0x10000000U);
  rig.Launch();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Subscript out of range");
  EXPECT_EQ(rig.machine.StartedPrograms(), std::vector<std::string>{"calc"});
}

TEST(LaunchRelease, DrawsNoBar) {
  LaunchRig rig;
  rig.Store("Settings", "Launcher RAM", "4");
  rig.StartLauncher();
  rig.Tab().List5.DoubleClick(0);
  EXPECT_EQ(rig.NewestBarPx(), 0);
}

}  // namespace
}  // namespace qdix::tests
