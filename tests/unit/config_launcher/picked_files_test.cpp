// Files dropped on the window or picked with "Browse...".
#include <gtest/gtest.h>

#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

const launcher::LauncherEntry kGame{"Game", "\"C:\\My Games\\G.EXE\" /full", ""};

using Names = std::vector<std::string>;

constexpr const char* kRefused =
    "These files were not added. They are not programs or shortcuts to programs, or their paths are too "
    "long:\r\n\r\n";
constexpr const char* kWithoutFolder =
    "The launcher cannot use a network folder that has no drive letter. \"Start In:\" was left empty for "
    "these programs:\r\n\r\n";

TEST(ConfigDroppedFiles, AreAddedWithNameCommandLineAndFolder) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.form->FilesDropped({"C:\\WINDOWS\\CALC.EXE", "C:\\My Games\\Big Game.exe"});
  EXPECT_EQ(rig.form->Entries(), (Entries{SomeEntries(1)[0],
                                          {"CALC", "C:\\WINDOWS\\CALC.EXE", "C:\\WINDOWS"},
                                          {"Big Game", "\"C:\\My Games\\Big Game.exe\"", "C:\\My Games"}}));
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 2);
  EXPECT_EQ(rig.Fields().name, "Big Game");
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigDroppedFiles, LeaveTypedText) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kGame);
  rig.form->FilesDropped({"C:\\WINDOWS\\CALC.EXE"});
  EXPECT_EQ(rig.Fields(), kGame);
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 0);
  EXPECT_EQ(rig.Rows(), (Names{"Program 0", "CALC"}));
}

TEST(ConfigDroppedFiles, FoldersAndLongPathsAreNamedAndLeftOut) {
  ConfigRig rig;
  rig.Start();
  const std::string long_path = "C:\\" + std::string(250, 'd') + "\\A.EXE";
  rig.machine.WhileBoxIsOpen(
      [&rig] { EXPECT_EQ(rig.Fields().name, "A") << "the fields are filled while the box is open"; });
  rig.form->FilesDropped({"C:\\WINDOWS", long_path, "C:\\A.EXE"});
  EXPECT_EQ(rig.Rows(), Names{"A"});
  EXPECT_EQ(rig.BoxText(1), kRefused + std::string("C:\\WINDOWS\r\n") + long_path + "\r\n");
}

TEST(ConfigDroppedFiles, ShortcutBecomesItsTargetUnderItsOwnName) {
  ConfigRig rig;
  const std::string desktop = "C:\\WINDOWS\\Desktop\\";
  rig.machine.AddShortcut(
      desktop + "My game.lnk",
      {.target = "C:\\My Games\\Big Game.exe", .arguments = "/full \"level 2\"", .folder = "D:\\Saved"});
  rig.machine.AddShortcut(desktop + "Sums.LNK",
                          {.target = "C:\\WINDOWS\\CALC.EXE", .arguments = {}, .folder = {}});
  rig.Start();
  rig.form->FilesDropped({desktop + "My game.lnk", desktop + "Sums.LNK"});
  EXPECT_EQ(rig.form->Entries(),
            (Entries{{"My game", "\"C:\\My Games\\Big Game.exe\" /full \"level 2\"", "D:\\Saved"},
                     {"Sums", "C:\\WINDOWS\\CALC.EXE", "C:\\WINDOWS"}}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigDroppedFiles, ShortcutsToNoProgramAreNamedAndLeftOut) {
  ConfigRig rig;
  const std::string desktop = "C:\\WINDOWS\\Desktop\\";
  rig.machine.WriteFile(desktop + "My Computer.lnk", "leads to no file");
  rig.machine.AddShortcut(desktop + "Windows.lnk", {.target = "C:\\WINDOWS", .arguments = {}, .folder = {}});
  rig.machine.AddShortcut(
      desktop + "Long.lnk",
      {.target = "C:\\A.EXE", .arguments = std::string(launcher::kPathWidth, 'a'), .folder = {}});
  rig.Start();
  rig.form->FilesDropped({desktop + "My Computer.lnk", desktop + "Windows.lnk", desktop + "Long.lnk"});
  EXPECT_EQ(rig.Rows(), Names{});
  EXPECT_EQ(rig.BoxText(1), kRefused + desktop + "My Computer.lnk\r\n" + desktop + "Windows.lnk\r\n" +
                                desktop + "Long.lnk\r\n");
}

TEST(ConfigDroppedFiles, ShortcutThatCannotBeReadIsNamedAndLeftOut) {
  ConfigRig rig;
  rig.machine.AddShortcut("C:\\A.lnk", {.target = "C:\\A.EXE", .arguments = {}, .folder = {}});
  rig.Start();
  rig.machine.FailNextCall("ReadShortcut");
  rig.form->FilesDropped({"C:\\A.lnk"});
  EXPECT_EQ(rig.Rows(), Names{});
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(ConfigDroppedFiles, StopAtTwentyFive) {
  ConfigRig rig(SomeEntries(24));
  rig.Start();
  rig.form->FilesDropped({"C:\\A.EXE", "C:\\B.EXE", "C:\\C.EXE"});
  EXPECT_EQ(rig.form->Entries().size(), 25U);
  EXPECT_EQ(rig.Rows().back(), "A");
  EXPECT_EQ(rig.BoxText(1), "The launcher takes 25 programs at most. Not all files were added.");
}

TEST(ConfigDroppedFiles, RefusedFilesAreNamedBeforeTheFullList) {
  ConfigRig rig(SomeEntries(24));
  rig.Start();
  rig.form->FilesDropped({"C:\\WINDOWS", "C:\\A.EXE", "C:\\B.EXE"});
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, kRefused + std::string("C:\\WINDOWS\r\n"));
  EXPECT_EQ(rig.machine.Boxes()[1].text, "The launcher takes 25 programs at most. Not all files were added.");
}

TEST(ConfigDroppedFiles, NothingHappensDuringAQuestion) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kGame);
  rig.machine.WhileBoxIsOpen([&rig] { rig.form->FilesDropped({"C:\\A.EXE"}); });
  rig.Screen().lstPrograms.ChooseIndex(1);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(2));
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(ConfigDroppedFiles, OnlyProgramsAndShortcutsToProgramsAreAdded) {
  ConfigRig rig;
  rig.machine.SetWindowsDirectory("C:\\FOLDER.EXE");
  rig.machine.AddShortcut("C:\\Letter.lnk", {.target = "C:\\LETTER.DOC", .arguments = {}, .folder = {}});
  rig.machine.AddShortcut("C:\\Folder.lnk", {.target = "C:\\FOLDER.EXE", .arguments = {}, .folder = {}});
  rig.Start();
  rig.form->FilesDropped({"C:\\A.EXE", "C:\\B.com", "C:\\C.Bat", "C:\\D.PIF", "C:\\READ.ME", "C:\\EXE",
                          "C:\\NOTES.TXT", "C:\\FOLDER.EXE", "C:\\Letter.lnk", "C:\\Folder.lnk"});
  EXPECT_EQ(rig.Rows(), (Names{"A", "B", "C", "D"}));
  EXPECT_EQ(rig.BoxText(1), kRefused + std::string("C:\\READ.ME\r\nC:\\EXE\r\nC:\\NOTES.TXT\r\n"
                                                   "C:\\FOLDER.EXE\r\nC:\\Letter.lnk\r\n"
                                                   "C:\\Folder.lnk\r\n"));
}

TEST(ConfigDroppedFiles, NoMoreThanTenAreNamed) {
  for (const int count : {10, 13}) {
    ConfigRig rig;
    rig.Start();
    std::vector<std::string> files;
    std::string named;
    for (int number = 0; number < count; ++number) {
      files.push_back("C:\\" + std::to_string(number) + ".TXT");
      if (number < 10) named += files.back() + "\r\n";
    }
    rig.form->FilesDropped(files);
    EXPECT_EQ(rig.BoxText(1), kRefused + named + (count > 10 ? "(and 3 more)\r\n" : ""));
  }
}

TEST(ConfigDroppedFiles, DuplicateEntryCausesAQuestion) {
  ConfigRig rig;
  rig.Start();
  rig.form->FilesDropped({"C:\\A.EXE"});
  rig.form->FilesDropped({"C:\\a.exe", "C:\\B.EXE"});
  EXPECT_EQ(rig.BoxText(1),
            "\"a\" is already in the list with the same command line and folder.\r\n\r\n"
            "Do you want to add it again?");
  EXPECT_EQ(rig.Rows(), (Names{"A", "B"})) << "the default answer is No";
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.form->FilesDropped({"C:\\A.EXE"});
  EXPECT_EQ(rig.Rows(), (Names{"A", "B", "A"}));
}

TEST(ConfigDroppedFiles, EndOfTheSessionDuringAQuestionEndsTheAdding) {
  ConfigRig rig;
  rig.Start();
  rig.form->FilesDropped({"C:\\A.EXE"});
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.machine.WhileBoxIsOpen([&rig] { rig.form->EndSession(); });
  rig.form->FilesDropped({"C:\\A.EXE", "C:\\B.EXE"});
  EXPECT_EQ(rig.form->Entries().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(ConfigDroppedFiles, NetworkFolderIsLeftOutAndReported) {
  ConfigRig rig;
  rig.machine.AddShortcut("C:\\Sums.lnk",
                          {.target = "C:\\CALC.EXE", .arguments = {}, .folder = "\\\\PC\\DIR"});
  rig.Start();
  rig.form->FilesDropped({"\\\\PC\\TOOLS\\EDIT.EXE", "C:\\Sums.lnk", "C:\\A.EXE"});
  EXPECT_EQ(rig.form->Entries(), (Entries{{"EDIT", "\\\\PC\\TOOLS\\EDIT.EXE", ""},
                                          {"Sums", "C:\\CALC.EXE", ""},
                                          {"A", "C:\\A.EXE", "C:\\"}}));
  EXPECT_EQ(rig.BoxText(1), kWithoutFolder + std::string("EDIT\r\nSums\r\n"));
}

TEST(ConfigDroppedFiles, FolderOfAShortcutLosesItsQuotationMarks) {
  ConfigRig rig;
  rig.machine.AddShortcut("C:\\Sums.lnk",
                          {.target = "C:\\CALC.EXE", .arguments = {}, .folder = "\"D:\\My Sums\""});
  rig.Start();
  rig.form->FilesDropped({"C:\\Sums.lnk"});
  EXPECT_EQ(rig.form->Entries(), (Entries{{"Sums", "C:\\CALC.EXE", "D:\\My Sums"}}));
}

TEST(ConfigDroppedFiles, RefusedFilesAloneChangeNothing) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.form->FilesDropped({"C:\\NOTES.TXT"});
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 0);
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[0]);
}

TEST(ConfigBrowse, StartsANewEntryThatAddAdds) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.dialogs.PickNext("C:\\My Games\\Big Game.exe");
  rig.Screen().cmdBrowsePath.Press();
  const launcher::LauncherEntry picked{"Big Game", "\"C:\\My Games\\Big Game.exe\"", "C:\\My Games"};
  EXPECT_EQ(rig.Fields(), picked);
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), ui::ListBox::kNoSelection);
  EXPECT_FALSE(rig.Screen().cmdChange.Reachable()) << "it would replace another program";
  EXPECT_EQ(rig.form->Entries(), SomeEntries(2));
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.form->Entries(), (Entries{SomeEntries(2)[0], SomeEntries(2)[1], picked}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigBrowse, SecondPickReplacesTheFirst) {
  ConfigRig rig;
  rig.Start();
  rig.dialogs.PickNext("C:\\My Games\\Big Game.exe");
  rig.Screen().cmdBrowsePath.Press();
  rig.dialogs.PickNext("D:\\SETUP.EXE");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(), (launcher::LauncherEntry{"SETUP", "D:\\SETUP.EXE", "D:\\"}));
  rig.dialogs.PickNext("E:\\");
  rig.Screen().cmdBrowseStartIn.Press();
  EXPECT_EQ(rig.Fields().start_in, "E:\\");
  EXPECT_EQ(rig.dialogs.Shown(),
            (Names{"GetOpenFileNameA()", "GetOpenFileNameA(C:\\My Games)", "SHBrowseForFolderA(D:\\)"}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigBrowse, NameAndFolderOfANewEntryStayAsTheUserTypedThem) {
  ConfigRig rig;
  rig.Start();
  rig.Type({"My game", "", "\"E:\\Saved\""});
  rig.dialogs.PickNext("C:\\GAME.EXE");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(), (launcher::LauncherEntry{"My game", "C:\\GAME.EXE", "E:\\Saved"}));
  EXPECT_EQ(rig.dialogs.Shown(), Names{"GetOpenFileNameA(E:\\Saved)"});
}

TEST(ConfigBrowse, AsksBeforeAChangeOfTheSelectedEntryIsLost) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kGame);
  rig.dialogs.PickNext("C:\\A.EXE");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.BoxText(1), kDiscardFields);
  EXPECT_EQ(rig.Fields(), kGame) << "the default answer is No";
  rig.dialogs.PickNext("C:\\A.EXE");
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(), (launcher::LauncherEntry{"A", "C:\\A.EXE", "C:\\"}));
  EXPECT_EQ(rig.form->Entries(), SomeEntries(1));
}

TEST(ConfigBrowse, OkAsksAboutAPickedFileThatWasNotAdded) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.dialogs.PickNext("C:\\A.EXE");
  rig.Screen().cmdBrowsePath.Press();
  rig.Screen().cmdOK.Press();
  EXPECT_EQ(rig.BoxText(1), kSaveWithoutFields);
  EXPECT_FALSE(rig.form->Form().Unloaded());
}

TEST(ConfigBrowse, ShortcutGivesItsTarget) {
  ConfigRig rig;
  rig.machine.AddShortcut("C:\\Game.lnk",
                          {.target = "D:\\G.EXE", .arguments = "/full", .folder = "E:\\Saved"});
  rig.Start();
  rig.dialogs.PickNext("C:\\Game.lnk");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(), (launcher::LauncherEntry{"Game", "D:\\G.EXE /full", "E:\\Saved"}));
}

TEST(ConfigBrowse, FileThatIsNoProgramIsNamedAndChangesNothing) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.dialogs.PickNext("C:\\NOTES.TXT");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.BoxText(1), kRefused + std::string("C:\\NOTES.TXT\r\n"));
  EXPECT_EQ(rig.Fields(), SomeEntries(1)[0]);
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 0);
}

TEST(ConfigBrowse, NetworkFolderIsLeftOutAndReported) {
  ConfigRig rig;
  rig.Start();
  rig.dialogs.PickNext("\\\\PC\\TOOLS\\EDIT.EXE");
  rig.machine.WhileBoxIsOpen(
      [&rig] { EXPECT_EQ(rig.Fields().name, "EDIT") << "the fields are filled while the box is open"; });
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(), (launcher::LauncherEntry{"EDIT", "\\\\PC\\TOOLS\\EDIT.EXE", ""}));
  EXPECT_EQ(rig.BoxText(1), kWithoutFolder + std::string("EDIT\r\n"));
}

TEST(ConfigBrowse, CancelChangesNothing) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Screen().cmdBrowsePath.Press();
  rig.Screen().cmdBrowseStartIn.Press();
  EXPECT_EQ(rig.Fields(), SomeEntries(1)[0]);
  EXPECT_EQ(rig.dialogs.Shown().size(), 2U);
}

TEST(ConfigBrowse, PathThatIsTooLongIsRefused) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.dialogs.PickNext("C:\\" + std::string(240, 'd') + "\\12345 78.EXE");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.BoxText(1), kRefused + ("C:\\" + std::string(240, 'd')) + "\\12345 78.EXE\r\n");
  rig.dialogs.PickNext("C:\\" + std::string(253, 'd'));
  rig.Screen().cmdBrowseStartIn.Press();
  EXPECT_EQ(rig.BoxText(2), "This path is too long. The list takes paths of 255 characters at most.");
  EXPECT_EQ(rig.Fields(), SomeEntries(1)[0]);
}

TEST(ConfigBrowse, WindowStaysOpenDuringADialogUntilTheSessionEnds) {
  ConfigRig rig;
  rig.Start();
  rig.Type({"Game", "", ""});
  rig.dialogs.PickNext("C:\\A.EXE");
  rig.dialogs.WhileOpen([&rig] { rig.form->Form().Close(); });
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_FALSE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Fields().path, "C:\\A.EXE");
  rig.dialogs.PickNext("C:\\B.EXE");
  rig.dialogs.WhileOpen([&rig] { rig.form->EndSession(); });
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.Fields().path, "C:\\A.EXE");
}

}  // namespace
}  // namespace qdix::tests
