// The list of programs: read, shown on the tab and in the menu, and started from both.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "launcher/launcher_file.h"
#include "tests/support/form_fixture.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using launcher::LauncherEntry;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kListPath = "C:\\Program Files\\QDIX\\launcher.dat";

std::string Records(const std::vector<LauncherEntry>& entries) {
  std::string content;
  for (const LauncherEntry& entry : entries) content += launcher::RecordBytes(entry);
  return content;
}

std::vector<LauncherEntry> Numbered(int count) {
  std::vector<LauncherEntry> entries;
  for (int number = 1; number <= count; ++number) {
    const std::string text = std::to_string(number);
    entries.push_back({"Program " + text, "game" + text, ""});
  }
  return entries;
}

class Launcher : public testing::Test {
 protected:
  Launcher() {
    rig.SetHasRunBefore();
    for (const char* program : {"calc", "game1", "game2", "C:\\TOOLS\\EDIT.EXE"}) {
      rig.machine.AddProgram(program);
    }
    rig.machine.AddFolder("D:");
    rig.machine.AddFolder("D:\\GAMES");
  }
  void WriteList(const std::vector<LauncherEntry>& entries) {
    rig.machine.WriteFile(kListPath, Records(entries));
  }
  void Start() {
    rig.Start().MainWindow().SSTab1.ChooseTab(screens::kLauncherTab);
    rig.RemoveGraph();
    calls_before_ = rig.machine.Calls().size();
  }
  void StartWith(const std::vector<LauncherEntry>& entries) {
    WriteList(entries);
    Start();
  }
  screens::LauncherScreen& Tab() { return rig.program->LauncherScreen(); }
  screens::TrayMenu& Menu() { return rig.program->TrayMenu(); }
  std::vector<std::string> Listed() {
    std::vector<std::string> names;
    for (int row = 0; row < Tab().List5.Count(); ++row) names.push_back(Tab().List5.Item(row));
    return names;
  }
  std::vector<std::string> InMenu() {
    std::vector<std::string> names;
    for (const ui::MenuItem* item : Menu().mnuPrograms.Children()) {
      if (item->Visible()) names.push_back(item->Caption());
    }
    return names;
  }
  std::vector<std::string> Boxes() {
    std::vector<std::string> texts;
    for (const auto& box : rig.machine.Boxes()) texts.push_back(box.text);
    return texts;
  }
  /// Returns the calls that change the folder and start programs.
  std::vector<std::string> Starts() {
    std::vector<std::string> calls;
    for (std::size_t i = calls_before_; i < rig.machine.Calls().size(); ++i) {
      const std::string& call = rig.machine.Calls()[i];
      if (call.starts_with("SetCurrentDirectoryA") || call.starts_with("CreateProcessA"))
        calls.push_back(call);
    }
    return calls;
  }

  ProgramRig rig;

 private:
  std::size_t calls_before_ = 0;
};

TEST_F(Launcher, MissingListShowsNothingAndIsCreatedEmpty) {
  Start();
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_FALSE(Menu().mnuPrograms.Enabled());
  EXPECT_EQ(rig.machine.ReadFile(kListPath), "");
  EXPECT_EQ(rig.machine.OpenFileCount(), 0);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(Launcher, ProgramsAreShownInListAndMenuInTheirOrder) {
  StartWith({{"Calculator", "calc", ""}, {"My Game", "game1 /full", "D:\\GAMES"}});
  EXPECT_THAT(Listed(), ElementsAre("Calculator", "My Game"));
  EXPECT_THAT(InMenu(), ElementsAre("Calculator", "My Game"));
  EXPECT_TRUE(Menu().mnuPrograms.Enabled());
  EXPECT_EQ(Tab().List5.ItemData(0), 0);
  EXPECT_EQ(Tab().List5.ItemData(1), 1);
  EXPECT_EQ(rig.machine.OpenFileCount(), 0);
}

TEST_F(Launcher, FileOf1130BytesHasTwoPrograms) {
  const std::string content = Records(Numbered(2));
  ASSERT_EQ(content.size(), 1130U);
  rig.machine.WriteFile(kListPath, content);
  Start();
  EXPECT_THAT(Listed(), ElementsAre("Program 1", "Program 2"));
}

TEST_F(Launcher, FileOf848BytesHasTwoProgramsTheSecondReadAsBlanks) {
  const std::string content = Records({{"First", "calc", ""}, {"Second", "game2", ""}});
  rig.machine.WriteFile(kListPath, content.substr(0, 848));
  Start();
  EXPECT_THAT(Listed(), ElementsAre("First", "Second"));
  Tab().List5.DoubleClick(1);
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("game2"));
}

TEST_F(Launcher, FileOf847BytesHasOne) {
  rig.machine.WriteFile(kListPath, Records(Numbered(2)).substr(0, 847));
  Start();
  EXPECT_THAT(Listed(), ElementsAre("Program 1"));
}

TEST_F(Launcher, TwentyFiveProgramsFillTheMenu) {
  StartWith(Numbered(25));
  EXPECT_EQ(Listed().size(), 25U);
  EXPECT_EQ(InMenu().size(), 25U);
  EXPECT_EQ(InMenu().back(), "Program 25");
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST_F(Launcher, TwentySixthProgramEndsTheProgramAndLeavesTheListAsItIs) {
  for (const int count : {26, 27, 1000}) {
    ProgramRig other;
    other.machine.WriteFile(kListPath, Records(Numbered(count)));
    other.Start();
    ASSERT_FALSE(other.machine.Boxes().empty());
    EXPECT_EQ(other.machine.Boxes().back().text,
              "Run-time error '340':\r\n\r\nControl array element '25' doesn't exist");
    EXPECT_TRUE(other.program->Form().Unloaded());
    EXPECT_EQ(other.machine.ReadFile(kListPath), Records(Numbered(count)));
    EXPECT_EQ(other.machine.OpenFileCount(), 0);
    EXPECT_EQ(other.machine.TrayIconCount(), 0);
  }
}

TEST_F(Launcher, FieldsAreTrimmedAndEndAtTheFirstNul) {
  StartWith({{"  Two words ", "calc", ""}, {std::string("Cut\0off", 7), std::string("game1\0x", 7), ""}});
  EXPECT_THAT(Listed(), ElementsAre("Two words", "Cut"));
  EXPECT_THAT(InMenu(), ElementsAre("Two words", "Cut"));
  Tab().List5.DoubleClick(1);
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("game1"));
}

TEST_F(Launcher, FolderEndsAtTheFirstNul) {
  StartWith(
      {{"Game", "game1", std::string("D:\\GAMES\0\\OLD", 13)}, {"Empty", "calc", std::string("\0D:\\", 4)}});
  Tab().List5.DoubleClick(0);
  Tab().List5.DoubleClick(1);
  EXPECT_THAT(Starts(), ElementsAre("SetCurrentDirectoryA(D:)", "SetCurrentDirectoryA(D:\\GAMES)",
                                    "CreateProcessA(game1)", "CreateProcessA(calc)"));
}

TEST_F(Launcher, HighCharactersAndAmpersandsShowAsTheyAre) {
  StartWith({{"R&D \xC4\xD6\xDC", "calc", ""}});
  EXPECT_THAT(Listed(), ElementsAre("R&D \xC4\xD6\xDC"));
  EXPECT_THAT(InMenu(), ElementsAre("R&D \xC4\xD6\xDC"));
}

TEST_F(Launcher, ListThatCannotBeCreatedCountsAsEmptySilently) {
  rig.machine.ProtectDisk();
  Start();
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(rig.machine.ReadFile(kListPath), std::nullopt);
}

TEST_F(Launcher, ListOnACdIsRead) {
  WriteList(Numbered(1));
  rig.machine.ProtectDisk();
  Start();
  EXPECT_THAT(Listed(), ElementsAre("Program 1"));
}

TEST_F(Launcher, DoubleClickStartsTheProgramInItsFolder) {
  StartWith({{"Game", "game1 /full", "D:\\GAMES"}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Starts(), ElementsAre("SetCurrentDirectoryA(D:)", "SetCurrentDirectoryA(D:\\GAMES)",
                                    "CreateProcessA(game1 /full)"));
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Launcher, ProgramWithoutAFolderStartsInTheCurrentOne) {
  StartWith({{"Calculator", "calc", ""}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Starts(), ElementsAre("CreateProcessA(calc)"));
}

TEST_F(Launcher, FolderOfTheLastProgramRemainsCurrent) {
  StartWith({{"Game", "game1", "D:\\GAMES"}, {"Calculator", "calc", ""}});
  Tab().List5.DoubleClick(0);
  Tab().List5.DoubleClick(1);
  EXPECT_THAT(Starts(), ElementsAre("SetCurrentDirectoryA(D:)", "SetCurrentDirectoryA(D:\\GAMES)",
                                    "CreateProcessA(game1)", "CreateProcessA(calc)"));
}

TEST_F(Launcher, MenuStartsTheSameProgram) {
  StartWith({{"Calculator", "calc", ""}, {"Game", "game2", "D:\\GAMES"}});
  Menu().mnuProgram[1].Choose();
  EXPECT_THAT(Starts(), ElementsAre("SetCurrentDirectoryA(D:)", "SetCurrentDirectoryA(D:\\GAMES)",
                                    "CreateProcessA(game2)"));
  EXPECT_FALSE(Tab().txtFreeLabel.Visible());
}

TEST_F(Launcher, DoubleClickOnTheEmptyPartDoesNothing) {
  StartWith({{"Calculator", "calc", ""}});
  Tab().List5.DoubleClick(ui::ListControl::kNoSelection);
  EXPECT_THAT(Starts(), IsEmpty());
  EXPECT_EQ(rig.machine.PumpCount(), 0);
}

TEST_F(Launcher, LabelIsShownAndListIsDisabledWhileMemoryIsFreed) {
  StartWith({{"Calculator", "calc", ""}});
  bool seen = false;
  rig.machine.OnPump([&](int) {
    seen = true;
    EXPECT_TRUE(Tab().txtFreeLabel.Visible());
    EXPECT_FALSE(Tab().List5.Enabled());
  });
  Tab().List5.DoubleClick(0);
  EXPECT_TRUE(seen);
  EXPECT_EQ(Tab().txtFreeLabel.Caption(), "Freeing Up Memory");
  EXPECT_FALSE(Tab().txtFreeLabel.Visible());
  EXPECT_TRUE(Tab().List5.Enabled());
}

TEST_F(Launcher, LabelIsPaintedAtOnceBothTimes) {
  using Changes = std::vector<ui::Change>;
  StartWith({{"Calculator", "calc", ""}});
  RecordingPeer peer;
  Tab().txtFreeLabel.AttachPeer(&peer);
  Changes at_the_release;
  rig.machine.OnPump([&](int) { at_the_release = peer.changes; });
  Tab().List5.DoubleClick(0);
  EXPECT_EQ(at_the_release, (Changes{ui::Change::kVisible, ui::Change::kRepaint}));
  EXPECT_EQ(peer.changes, (Changes{ui::Change::kVisible, ui::Change::kRepaint, ui::Change::kVisible,
                                   ui::Change::kRepaint}));
}

TEST_F(Launcher, MenuLeavesLabelAndListAlone) {
  StartWith({{"Calculator", "calc", ""}});
  rig.machine.OnPump([&](int) {
    EXPECT_FALSE(Tab().txtFreeLabel.Visible());
    EXPECT_TRUE(Tab().List5.Enabled());
  });
  Menu().mnuProgram[0].Choose();
  EXPECT_GT(rig.machine.PumpCount(), 0);
}

TEST_F(Launcher, DrivesAreTheLettersFromAToZInEitherCase) {
  const std::string letters = "AZaz";
  const std::string others = "@[`{1";
  std::vector<LauncherEntry> entries;
  for (const char drive : letters + others) {
    entries.push_back({std::string(1, drive), "calc", std::string(1, drive) + ":\\X"});
  }
  StartWith(entries);
  for (std::size_t row = 0; row < entries.size(); ++row) Tab().List5.DoubleClick(static_cast<int>(row));
  std::vector<std::string> drives_asked;
  for (const std::string& call : Starts()) {
    if (call.ends_with(":)")) drives_asked.push_back(call);
  }
  EXPECT_THAT(drives_asked, ElementsAre("SetCurrentDirectoryA(A:)", "SetCurrentDirectoryA(Z:)",
                                        "SetCurrentDirectoryA(a:)", "SetCurrentDirectoryA(z:)"));
}

TEST_F(Launcher, MissingDriveIsReportedAndTheLaunchContinues) {
  StartWith({{"Calculator", "calc", "X:\\GAMES"}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Boxes(), ElementsAre("Device unavailable", "Path not found"));
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk);
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("calc"));
}

TEST_F(Launcher, ProgramOnADriveWithoutADiskIsReportedAfterItsFolder) {
  rig.machine.AddFolder("E:");
  rig.machine.AddFolder("E:\\");
  rig.machine.AddProgram("E:\\SETUP.EXE");
  StartWith({{"Setup", "E:\\SETUP.EXE", "E:\\"}, {"Set up", "\"e:\\setup.exe\" /s", ""}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("E:\\SETUP.EXE"));
  rig.machine.RemoveDisk('e');
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Boxes(), ElementsAre("Device unavailable", "Path not found", "File not found"));
  Tab().List5.DoubleClick(1);
  EXPECT_EQ(rig.machine.Boxes().back().text, "File not found");
  EXPECT_EQ(rig.machine.StartedPrograms().size(), 1U);
}

TEST_F(Launcher, MissingFolderIsReportedAndTheLaunchContinues) {
  StartWith({{"Calculator", "calc", "D:\\NOWHERE"}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Boxes(), ElementsAre("Path not found"));
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("calc"));
}

TEST_F(Launcher, FolderWithoutADriveIsReportedAndTheLaunchContinues) {
  StartWith({{"Calculator", "calc", "\\\\server\\share"}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Boxes(), ElementsAre("Invalid procedure call or argument", "Path not found"));
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("calc"));
}

TEST_F(Launcher, MissingProgramIsReported) {
  StartWith({{"Gone", "nothing.exe", ""}});
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Boxes(), ElementsAre("File not found"));
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST_F(Launcher, EmptyCommandLineIsReported) {
  StartWith({{"Empty", "", ""}});
  Menu().mnuProgram[0].Choose();
  EXPECT_THAT(Boxes(), ElementsAre("Invalid procedure call or argument"));
}

TEST_F(Launcher, ChosenProgramStartsEvenIfTheListIsReadAgainDuringTheRelease) {
  StartWith({{"First", "game1", ""}});
  rig.machine.OnPump([&](int number) {
    if (number != 1) return;
    WriteList({{"Second", "game2", ""}});
    rig.program->LauncherScreen().Command15.Press();
  });
  rig.machine.AddProgram("C:\\PROGRAM FILES\\QDIX\\CONFIGL.EXE");
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(rig.machine.StartedPrograms(),
              ElementsAre("\"C:\\Program Files\\QDIX\\configL.exe\"", "game1"));
}

TEST_F(Launcher, ClosingTheWindowDuringTheReleaseStartsNothing) {
  StartWith({{"Calculator", "calc", "D:\\GAMES"}});
  rig.machine.OnPump([&](int number) {
    if (number == 10) rig.program->Form().Unload();
  });
  Tab().List5.DoubleClick(0);
  EXPECT_THAT(Starts(), IsEmpty());
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty());
}

TEST_F(Launcher, EndOfTheSessionDuringABoxStartsNothingMore) {
  StartWith({{"Calculator", "calc", "X:\\"}});
  rig.machine.WhileBoxIsOpen([&] {
    rig.program->EndSession();
    rig.machine.EndBoxes();
  });
  Tab().List5.DoubleClick(0);
  EXPECT_TRUE(rig.machine.StartedPrograms().empty());
}

}  // namespace
}  // namespace qdix::tests
