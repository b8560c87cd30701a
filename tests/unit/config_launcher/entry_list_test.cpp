// Adding, changing, removing, moving, and what is typed.
#include <gtest/gtest.h>

#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

const launcher::LauncherEntry kEditor{"Editor", "NOTEPAD.EXE", "C:\\WINDOWS"};
const launcher::LauncherEntry kGame{"Game", "\"C:\\My Games\\G.EXE\" /full", ""};

using Names = std::vector<std::string>;

TEST(ConfigEntryList, EmptyListOffersOnlyToAdd) {
  ConfigRig rig;
  rig.Start();
  EXPECT_TRUE(rig.form->Window().Shown());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Screen().lblCount.Caption(), "(0 of 25)");
  EXPECT_TRUE(rig.Screen().cmdAdd.Reachable());
  for (const ui::Button* const button : {&rig.Screen().cmdChange, &rig.Screen().cmdRemove,
                                         &rig.Screen().cmdMoveUp, &rig.Screen().cmdMoveDown}) {
    EXPECT_FALSE(button->Reachable()) << button->Name();
  }
}

TEST(ConfigEntryList, FirstEntryIsSelectedAndEachSelectedOneShown) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  EXPECT_EQ(rig.Rows(), (Names{"Program 0", "Program 1", "Program 2"}));
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[0]);
  rig.Screen().lstPrograms.ChooseIndex(2);
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[2]);
  EXPECT_TRUE(rig.Screen().cmdMoveUp.Reachable());
  EXPECT_FALSE(rig.Screen().cmdMoveDown.Reachable());
  rig.Screen().lstPrograms.ChooseIndex(0);
  EXPECT_FALSE(rig.Screen().cmdMoveUp.Reachable());
  EXPECT_TRUE(rig.Screen().cmdMoveDown.Reachable());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Changes(), Names{});
}

TEST(ConfigEntryList, AddAppendsAndSelects) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type({"  Editor ", " NOTEPAD.EXE", "C:\\WINDOWS  "});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Program 0", "Program 1", "Editor"}));
  EXPECT_EQ(rig.form->Entries().back(), kEditor);
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 2);
  EXPECT_EQ(rig.Fields(), kEditor) << "the blanks are gone";
  EXPECT_EQ(rig.Screen().lblCount.Caption(), "(3 of 25)");
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(2))) << "written before OK";
}

TEST(ConfigEntryList, ChangeReplacesTheSelectedOne) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().lstPrograms.ChooseIndex(1);
  rig.Type(kGame);
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.form->Entries(), (Entries{SomeEntries(3)[0], kGame, SomeEntries(3)[2]}));
  EXPECT_EQ(rig.Rows(), (Names{"Program 0", "Game", "Program 2"}));
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 1);
}

TEST(ConfigEntryList, NothingMovesBeyondTheEndsOrWithoutASelection) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  // As an accelerator that comes late would, past the disabled buttons.
  EXPECT_TRUE(rig.Screen().cmdMoveUp.OnClick().Ok());
  EXPECT_EQ(rig.form->Entries(), SomeEntries(2));
  rig.Screen().lstPrograms.ChooseIndex(1);
  EXPECT_TRUE(rig.Screen().cmdMoveDown.OnClick().Ok());
  EXPECT_EQ(rig.form->Entries(), SomeEntries(2));
  rig.Type(kGame);
  rig.Screen().cmdRemove.Press();
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), ui::ListBox::kNoSelection);
  EXPECT_TRUE(rig.Screen().cmdMoveDown.OnClick().Ok());
  EXPECT_TRUE(rig.Screen().cmdMoveUp.OnClick().Ok());
  EXPECT_EQ(rig.form->Entries(), SomeEntries(1));
}

TEST(ConfigEntryList, FieldThatIsMissingGetsTheKeyboardAfterTheMessage) {
  ConfigRig rig;
  rig.Start();
  const auto focus_after = [&rig](const launcher::LauncherEntry& typed, const ui::TextBox& missing) {
    rig.Type(typed);
    rig.Screen().cmdAdd.SetFocus();
    bool was_early = false;
    rig.machine.WhileBoxIsOpen([&] { was_early = missing.HasFocus(); });
    rig.Screen().cmdAdd.Press();
    EXPECT_FALSE(was_early) << "the box would give it back to the button";
    return missing.HasFocus();
  };
  EXPECT_TRUE(focus_after({"", "A.EXE", ""}, rig.Screen().txtName));
  EXPECT_TRUE(focus_after({"A", "", ""}, rig.Screen().txtPath));
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_TRUE(focus_after({"", "", ""}, rig.Screen().txtName)) << "one after the other";
}

TEST(ConfigEntryList, RemoveSelectsWhatComesNext) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().lstPrograms.ChooseIndex(1);
  rig.Screen().cmdRemove.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Program 0", "Program 2"}));
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[2]);
  rig.Screen().cmdRemove.Press();
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[0]);
  rig.Screen().cmdRemove.Press();
  EXPECT_EQ(rig.Rows(), Names{});
  EXPECT_EQ(rig.Fields(), launcher::LauncherEntry{});
  EXPECT_FALSE(rig.Screen().cmdRemove.Reachable());
}

TEST(ConfigEntryList, RemoveKeepsWhatIsTyped) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().cmdRemove.Press();
  EXPECT_EQ(rig.Fields(), kGame);
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), -1);
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Program 1", "Game"}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigEntryList, MovingCarriesTheEntryAndWhatIsTyped) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().cmdMoveDown.Press();
  rig.Screen().cmdMoveDown.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Program 1", "Program 2", "Program 0"}));
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 2);
  rig.Screen().cmdMoveDown.Press();
  rig.Screen().cmdMoveUp.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Program 1", "Program 0", "Program 2"}));
  EXPECT_EQ(rig.Fields(), kGame);
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Program 1", "Game", "Program 2"}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigEntryList, AnotherRowAsksBeforeWhatIsTypedIsLost) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().lstPrograms.ChooseIndex(2);
  EXPECT_TRUE(rig.BoxText(1).starts_with("What you typed in the fields is not in the list."));
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 0) << "No is the default";
  EXPECT_EQ(rig.Fields(), kGame);
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().lstPrograms.ChooseIndex(2);
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[2]);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(3));
}

TEST(ConfigEntryList, SameRowAgainAsksNothing) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().lstPrograms.ChooseIndex(0);
  EXPECT_EQ(rig.Fields(), kGame);
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigEntryList, NameAndCommandLineAreNeeded) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type({"   ", "NOTEPAD.EXE", ""});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.BoxText(1), "Please type a name for the program.");
  EXPECT_TRUE(rig.Screen().txtName.HasFocus());
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.BoxText(2), "Please type a name for the program.");
  rig.Type({"Editor", " ", ""});
  rig.Screen().cmdChange.Press();
  EXPECT_TRUE(rig.BoxText(3).starts_with("Please type the command line"));
  EXPECT_TRUE(rig.Screen().txtPath.HasFocus());
  EXPECT_EQ(rig.form->Entries(), SomeEntries(1));
}

TEST(ConfigEntryList, TheTwentySixthIsRefused) {
  ConfigRig rig(SomeEntries(24));
  rig.Start();
  rig.Type(kEditor);
  rig.Screen().cmdAdd.Press();
  rig.Type(kGame);
  rig.Screen().cmdAdd.Press();
  EXPECT_TRUE(rig.BoxText(1).starts_with("The launcher takes 25 programs at most."));
  EXPECT_EQ(rig.form->Entries().size(), 25U);
  EXPECT_EQ(rig.Fields(), kGame) << "typed once, still there";
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().lstPrograms.ChooseIndex(0);
  rig.Type(kGame);
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.form->Entries().front(), kGame) << "a full list can be changed";
}

TEST(ConfigEntryList, FieldsTakeNoMoreThanARecordHolds) {
  ConfigRig rig;
  rig.Start();
  rig.Type({std::string(60, 'n'), std::string(300, 'p'), std::string(300, 's')});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.form->Entries(),
            (Entries{{std::string(55, 'n'), std::string(255, 'p'), std::string(255, 's')}}));
}

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

TEST(ConfigDroppedFiles, LeaveWhatIsTyped) {
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
      [&rig] { EXPECT_EQ(rig.Fields().name, "A") << "the fields are filled behind the box"; });
  rig.form->FilesDropped({"C:\\WINDOWS", long_path, "C:\\A.EXE"});
  EXPECT_EQ(rig.Rows(), Names{"A"});
  EXPECT_TRUE(rig.BoxText(1).starts_with("These could not be added.")) << rig.BoxText(1);
  EXPECT_NE(rig.BoxText(1).find("C:\\WINDOWS\r\n" + long_path + "\r\n"), std::string::npos);
}

TEST(ConfigDroppedFiles, ShortcutBecomesWhatItLeadsToUnderItsOwnName) {
  ConfigRig rig;
  const std::string desktop = "C:\\WINDOWS\\Desktop\\";
  rig.machine.PutShortcut(
      desktop + "My game.lnk",
      {.target = "C:\\My Games\\Big Game.exe", .arguments = "/full \"level 2\"", .folder = "D:\\Saved"});
  rig.machine.PutShortcut(desktop + "Sums.LNK",
                          {.target = "C:\\WINDOWS\\CALC.EXE", .arguments = {}, .folder = {}});
  rig.Start();
  rig.form->FilesDropped({desktop + "My game.lnk", desktop + "Sums.LNK"});
  EXPECT_EQ(rig.form->Entries(),
            (Entries{{"My game", "\"C:\\My Games\\Big Game.exe\" /full \"level 2\"", "D:\\Saved"},
                     {"Sums", "C:\\WINDOWS\\CALC.EXE", "C:\\WINDOWS"}}));
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigDroppedFiles, ShortcutsThatLeadToNoProgramAreNamedAndLeftOut) {
  ConfigRig rig;
  const std::string desktop = "C:\\WINDOWS\\Desktop\\";
  rig.machine.WriteFile(desktop + "My Computer.lnk", "leads to no file");
  rig.machine.PutShortcut(desktop + "Windows.lnk", {.target = "C:\\WINDOWS", .arguments = {}, .folder = {}});
  rig.machine.PutShortcut(
      desktop + "Long.lnk",
      {.target = "C:\\A.EXE", .arguments = std::string(launcher::kPathWidth, 'a'), .folder = {}});
  rig.Start();
  rig.form->FilesDropped({desktop + "My Computer.lnk", desktop + "Windows.lnk", desktop + "Long.lnk"});
  EXPECT_EQ(rig.Rows(), Names{});
  EXPECT_EQ(
      rig.BoxText(1),
      "These could not be added. They are folders or shortcuts that lead to no file, or their paths are "
      "too long for the list:\r\n\r\n" +
          desktop + "My Computer.lnk\r\n" + desktop + "Windows.lnk\r\n" + desktop + "Long.lnk\r\n");
}

TEST(ConfigDroppedFiles, ShortcutThatCannotBeReadIsNamedAndLeftOut) {
  ConfigRig rig;
  rig.machine.PutShortcut("C:\\A.lnk", {.target = "C:\\A.EXE", .arguments = {}, .folder = {}});
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

TEST(ConfigDroppedFiles, WhatIsRefusedIsNamedBeforeTheLackOfRoom) {
  ConfigRig rig(SomeEntries(24));
  rig.Start();
  rig.form->FilesDropped({"C:\\WINDOWS", "C:\\A.EXE", "C:\\B.EXE"});
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_TRUE(rig.machine.Boxes()[0].text.starts_with("These could not be added."));
  EXPECT_EQ(rig.machine.Boxes()[1].text, "The launcher takes 25 programs at most. Not all files were added.");
}

TEST(ConfigDroppedFiles, NothingHappensUnderAQuestion) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kGame);
  rig.machine.WhileBoxIsOpen([&rig] { rig.form->FilesDropped({"C:\\A.EXE"}); });
  rig.Screen().lstPrograms.ChooseIndex(1);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(2));
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(ConfigBrowse, FillsTheCommandLineAndWhatIsEmpty) {
  ConfigRig rig;
  rig.Start();
  rig.dialogs.PickNext("C:\\My Games\\Big Game.exe");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(),
            (launcher::LauncherEntry{"Big Game", "\"C:\\My Games\\Big Game.exe\"", "C:\\My Games"}));
  rig.dialogs.PickNext("D:\\SETUP.EXE");
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_EQ(rig.Fields(), (launcher::LauncherEntry{"Big Game", "D:\\SETUP.EXE", "C:\\My Games"}));
  rig.dialogs.PickNext("E:\\");
  rig.Screen().cmdBrowseStartIn.Press();
  EXPECT_EQ(rig.Fields().start_in, "E:\\");
  EXPECT_EQ(rig.dialogs.Shown(), (Names{"GetOpenFileNameA()", "GetOpenFileNameA(C:\\My Games)",
                                        "SHBrowseForFolderA(C:\\My Games)"}));
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
  EXPECT_TRUE(rig.BoxText(1).starts_with("This path is too long"));
  rig.dialogs.PickNext("C:\\" + std::string(253, 'd'));
  rig.Screen().cmdBrowseStartIn.Press();
  EXPECT_TRUE(rig.BoxText(2).starts_with("This path is too long"));
  EXPECT_EQ(rig.Fields(), SomeEntries(1)[0]);
}

TEST(ConfigBrowse, WindowIsNotClosedUnderADialogAndSessionEndsIt) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kGame);
  rig.dialogs.PickNext("C:\\A.EXE");
  rig.dialogs.WhileOpen([&rig] { rig.form->Window().Close(); });
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_FALSE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Fields().path, "C:\\A.EXE");
  rig.dialogs.PickNext("C:\\B.EXE");
  rig.dialogs.WhileOpen([&rig] { rig.form->EndSession(); });
  rig.Screen().cmdBrowsePath.Press();
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.Fields().path, "C:\\A.EXE");
}

}  // namespace
}  // namespace qdix::tests
