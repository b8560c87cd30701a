// The editor of the program list: started once, and watched until it closes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "launcher/launcher_file.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kListPath = "C:\\Program Files\\QDIX\\launcher.dat";
constexpr const char* kEditorCommand = "\"C:\\Program Files\\QDIX\\configL.exe\"";
constexpr std::int64_t kTickMs = 3000;

class ConfigWatchTest : public testing::Test {
 protected:
  ConfigWatchTest() {
    rig.SetHasRunBefore();
    rig.machine.AddProgram("C:\\Program Files\\QDIX\\configL.exe");
    rig.Store("Settings", "Launcher RAM", "4");
    WriteList({"Old"});
    rig.Start().MainWindow().SSTab1.ChooseTab(screens::kLauncherTab);
    rig.RemoveGraph();
    rig.program->MainWindow().Timer1.SetEnabled(false);
  }
  void WriteList(const std::vector<std::string>& names) {
    std::string content;
    for (const std::string& name : names) content += launcher::RecordBytes({name, "calc", ""});
    rig.machine.WriteFile(kListPath, content);
  }
  void PressConfigure() { rig.program->LauncherScreen().Command15.Press(); }
  ui::Timer& Timer7() { return rig.program->MainWindow().Timer7; }
  std::vector<std::string> Listed() {
    std::vector<std::string> names;
    const ui::ListBox& list = rig.program->LauncherScreen().List5;
    for (int row = 0; row < list.Count(); ++row) names.push_back(list.Item(row));
    return names;
  }
  std::vector<std::string> InMenu() {
    std::vector<std::string> names;
    for (const ui::MenuItem* item : rig.program->TrayMenu().mnuPrograms.Children()) {
      if (item->Visible()) names.push_back(item->Caption());
    }
    return names;
  }

  ProgramRig rig;
};

TEST_F(ConfigWatchTest, ButtonStartsTheEditorAndTheWatch) {
  EXPECT_FALSE(Timer7().Enabled());
  PressConfigure();
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre(kEditorCommand));
  EXPECT_TRUE(Timer7().Enabled());
  EXPECT_EQ(Timer7().Interval(), 3000);
}

TEST_F(ConfigWatchTest, ButtonBringsAnOpenEditorForward) {
  PressConfigure();
  const os::WindowHandle editor = rig.machine.OpenWindow("ThunderRT6Main", "Config Launcher");
  PressConfigure();
  EXPECT_EQ(rig.machine.StartedPrograms().size(), 1U);
  EXPECT_EQ(rig.machine.ForegroundWindow(), editor);
}

TEST_F(ConfigWatchTest, EditorOpenedByTheUserIsBroughtForwardAndNotWatched) {
  const os::WindowHandle editor = rig.machine.OpenWindow("Any", "Config Launcher");
  PressConfigure();
  EXPECT_TRUE(rig.machine.StartedPrograms().empty());
  EXPECT_EQ(rig.machine.ForegroundWindow(), editor);
  EXPECT_FALSE(Timer7().Enabled());
}

TEST_F(ConfigWatchTest, ListIsReadAgainAtTheFirstTickAfterTheEditorClosed) {
  PressConfigure();
  const os::WindowHandle editor = rig.machine.OpenWindow("Any", "Config Launcher");
  rig.AdvanceMs(10 * kTickMs);
  EXPECT_THAT(Listed(), ElementsAre("Old"));
  WriteList({"New 1", "New 2"});
  rig.machine.CloseWindow(editor);
  rig.AdvanceMs(kTickMs - 1);
  EXPECT_THAT(Listed(), ElementsAre("Old"));
  rig.AdvanceMs(1);
  EXPECT_THAT(Listed(), ElementsAre("New 1", "New 2"));
  EXPECT_THAT(InMenu(), ElementsAre("New 1", "New 2"));
  EXPECT_FALSE(Timer7().Enabled());
}

TEST_F(ConfigWatchTest, EditorHasThreeTicksToOpenItsWindow) {
  PressConfigure();
  WriteList({"New"});
  rig.AdvanceMs(3 * kTickMs);
  EXPECT_THAT(Listed(), ElementsAre("Old"));
  EXPECT_TRUE(Timer7().Enabled());
  rig.AdvanceMs(kTickMs);
  EXPECT_THAT(Listed(), ElementsAre("New"));
  EXPECT_FALSE(Timer7().Enabled());
}

TEST_F(ConfigWatchTest, WatchGivesUpAtTick251) {
  PressConfigure();
  rig.machine.OpenWindow("Any", "Config Launcher");
  rig.AdvanceMs(250 * kTickMs);
  EXPECT_TRUE(Timer7().Enabled());
  rig.AdvanceMs(kTickMs);
  EXPECT_FALSE(Timer7().Enabled());
  EXPECT_THAT(Listed(), ElementsAre("Old"));
}

TEST_F(ConfigWatchTest, TickThatGivesUpStillChecks) {
  PressConfigure();
  const os::WindowHandle editor = rig.machine.OpenWindow("Any", "Config Launcher");
  rig.AdvanceMs(250 * kTickMs);
  WriteList({"New"});
  rig.machine.CloseWindow(editor);
  rig.AdvanceMs(kTickMs);
  EXPECT_THAT(Listed(), ElementsAre("New"));
}

TEST_F(ConfigWatchTest, CountStartsAgainWithEachStart) {
  PressConfigure();
  rig.AdvanceMs(4 * kTickMs);
  PressConfigure();
  WriteList({"New"});
  rig.AdvanceMs(3 * kTickMs);
  EXPECT_THAT(Listed(), ElementsAre("Old"));
  EXPECT_EQ(rig.machine.StartedPrograms().size(), 2U);
}

TEST_F(ConfigWatchTest, EmptiedListDisablesTheMenuAndKeepsItsLastEntry) {
  PressConfigure();
  WriteList({});
  rig.AdvanceMs(4 * kTickMs);
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_FALSE(rig.program->TrayMenu().mnuPrograms.Enabled());
  EXPECT_EQ(InMenu().size(), 1U);
}

TEST_F(ConfigWatchTest, ShorterListHidesTheRemainingEntries) {
  WriteList({"1", "2", "3"});
  PressConfigure();
  rig.AdvanceMs(4 * kTickMs);
  EXPECT_THAT(InMenu(), ElementsAre("1", "2", "3"));
  WriteList({"4"});
  PressConfigure();
  rig.AdvanceMs(4 * kTickMs);
  EXPECT_THAT(InMenu(), ElementsAre("4"));
}

TEST_F(ConfigWatchTest, UnreadableListIsKeptAndReadAtTheNextTick) {
  for (const char* const refused : {"CreateFileA", "ReadFile", "GetFileSize"}) {
    WriteList({"Old"});
    PressConfigure();
    rig.AdvanceMs(4 * kTickMs);
    ASSERT_THAT(Listed(), ElementsAre("Old"));
    PressConfigure();
    WriteList({"New 1", "New 2"});
    rig.AdvanceMs(3 * kTickMs);
    rig.machine.FailNextCall(refused);
    rig.AdvanceMs(kTickMs);
    EXPECT_THAT(Listed(), ElementsAre("Old")) << refused;
    EXPECT_THAT(InMenu(), ElementsAre("Old")) << refused;
    EXPECT_TRUE(rig.program->TrayMenu().mnuPrograms.Enabled()) << refused;
    EXPECT_TRUE(Timer7().Enabled()) << refused;
    rig.AdvanceMs(kTickMs);
    EXPECT_THAT(Listed(), ElementsAre("New 1", "New 2")) << refused;
    EXPECT_THAT(InMenu(), ElementsAre("New 1", "New 2")) << refused;
    EXPECT_FALSE(Timer7().Enabled()) << refused;
  }
  EXPECT_EQ(rig.machine.OpenFileCount(), 0);
}

TEST_F(ConfigWatchTest, UnreadableListIsRetriedUntilTheWatchGivesUp) {
  PressConfigure();
  const os::WindowHandle editor = rig.machine.OpenWindow("Any", "Config Launcher");
  rig.AdvanceMs(249 * kTickMs);
  WriteList({"New"});
  rig.machine.CloseWindow(editor);
  for (const bool goes_on : {true, false}) {
    rig.machine.FailNextCall("ReadFile");
    rig.AdvanceMs(kTickMs);
    EXPECT_EQ(Timer7().Enabled(), goes_on);
    EXPECT_THAT(Listed(), ElementsAre("Old"));
  }
}

TEST_F(ConfigWatchTest, MissingListEmptiesListAndMenu) {
  PressConfigure();
  rig.machine.GetSystem().files.DeleteFileA(kListPath);
  rig.AdvanceMs(4 * kTickMs);
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_FALSE(rig.program->TrayMenu().mnuPrograms.Enabled());
  EXPECT_FALSE(Timer7().Enabled());
  EXPECT_EQ(rig.machine.ReadFile(kListPath), "");
}

TEST_F(ConfigWatchTest, TooLongAListEndsTheProgram) {
  PressConfigure();
  WriteList(std::vector<std::string>(26, "Name"));
  rig.AdvanceMs(4 * kTickMs);
  ASSERT_FALSE(rig.machine.Boxes().empty());
  EXPECT_EQ(rig.machine.Boxes().back().text,
            "Run-time error '340':\r\n\r\nControl array element '25' doesn't exist");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(ConfigWatchTest, MissingEditorIsARunTimeError) {
  rig.machine.RemoveProgram("C:\\Program Files\\QDIX\\configL.exe");
  PressConfigure();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '53':\r\n\r\nFile not found");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(ConfigWatchTest, RootFolderGetsNoSecondSeparator) {
  rig.machine.SetModuleFileName("A:\\QDIX.exe");
  rig.machine.AddProgram("A:\\configL.exe");
  PressConfigure();
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("\"A:\\configL.exe\""));
}

}  // namespace
}  // namespace qdix::tests
