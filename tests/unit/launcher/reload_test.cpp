// The list of programs is read again while the program runs, and its settings with it, but not during a
// launch.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "launcher/launcher_file.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;

/// Ticks of three seconds until the watch first looks for the editor.
constexpr std::int64_t kUntilReloadMs = 4 * 3000;

class LauncherReload : public testing::Test {
 protected:
  LauncherReload() {
    rig.SetHasRunBefore();
    for (const char* const program : {"game1", "game2", "C:\\Program Files\\QDIX\\configL.exe"}) {
      rig.machine.AddProgram(program);
    }
    for (const char* const folder : {"D:", "D:\\FIRST", "E:", "E:\\SECOND"}) rig.machine.AddFolder(folder);
    WriteList({"First", "game1", "D:\\FIRST"});
    rig.Start().MainWindow().SSTab1.ChooseTab(screens::kLauncherTab);
    rig.RemoveGraph();
    rig.program->LauncherScreen().Command15.Press();
  }
  void WriteList(const launcher::LauncherEntry& entry) {
    rig.machine.WriteFile("C:\\Program Files\\QDIX\\launcher.dat", launcher::RecordBytes(entry));
  }
  void ReloadAtTheFirstPump() {
    rig.machine.OnPump([this](int number) {
      if (number != 1) return;
      WriteList({"Second", "game2", "E:\\SECOND"});
      rig.AdvanceMs(kUntilReloadMs);
      listed_in_pump = rig.program->LauncherScreen().List5.Item(0);
    });
  }
  /// Returns the calls from `first_call` on that change the folder and start a program.
  [[nodiscard]] std::vector<std::string> Starts(std::size_t first_call) const {
    std::vector<std::string> calls;
    for (std::size_t i = first_call; i < rig.machine.Calls().size(); ++i) {
      const std::string& call = rig.machine.Calls()[i];
      const bool is_start = call.starts_with("SetCurrentDirectoryA") || call.starts_with("CreateProcessA");
      if (is_start) calls.push_back(call);
    }
    return calls;
  }

  ProgramRig rig;
  std::string listed_in_pump;
};

TEST_F(LauncherReload, ReadsTheSettingsOfTheReleaseAgain) {
  ASSERT_TRUE(rig.program->LauncherScreen().Option9.Selected());
  ASSERT_TRUE(rig.program->LauncherScreen().Slider_6[0].Selected());
  rig.Store("Settings", "Launcher RAM", "3");
  rig.Store("Settings", "Launcher Retry", "4");
  rig.AdvanceMs(kUntilReloadMs);
  EXPECT_TRUE(rig.program->LauncherScreen().Option7.Selected());
  EXPECT_TRUE(rig.program->LauncherScreen().Slider_6[3].Selected());
}

TEST_F(LauncherReload, ProgramOfTheListKeepsItsPathAndFolderDuringItsRelease) {
  ReloadAtTheFirstPump();
  const std::size_t before = rig.machine.Calls().size();
  rig.program->LauncherScreen().List5.DoubleClick(0);
  EXPECT_EQ(listed_in_pump, "Second") << "the list was read again";
  EXPECT_THAT(Starts(before), ElementsAre("SetCurrentDirectoryA(D:)", "SetCurrentDirectoryA(D:\\FIRST)",
                                          "CreateProcessA(game1)"));
}

TEST_F(LauncherReload, ProgramOfTheMenuKeepsItsPathAndFolderDuringItsRelease) {
  ReloadAtTheFirstPump();
  const std::size_t before = rig.machine.Calls().size();
  rig.program->TrayMenu().mnuProgram[0].Choose();
  EXPECT_EQ(listed_in_pump, "Second") << "the list was read again";
  EXPECT_THAT(Starts(before), ElementsAre("SetCurrentDirectoryA(D:)", "SetCurrentDirectoryA(D:\\FIRST)",
                                          "CreateProcessA(game1)"));
}

}  // namespace
}  // namespace qdix::tests
