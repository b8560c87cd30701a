// Adding, changing, removing and moving entries, and unsaved typing.
#include <gtest/gtest.h>

#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

const launcher::LauncherEntry kEditor{"Editor", "NOTEPAD.EXE", "C:\\WINDOWS"};
const launcher::LauncherEntry kGame{"Game", "\"C:\\My Games\\G.EXE\" /full", ""};

using Names = std::vector<std::string>;

TEST(ConfigEntryList, EmptyListOffersOnlyAdd) {
  ConfigRig rig;
  rig.Start();
  EXPECT_TRUE(rig.form->Form().Shown());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Screen().lblCount.Caption(), "(0 of 25)");
  EXPECT_TRUE(rig.Screen().cmdAdd.Reachable());
  for (const ui::Button* const button : {&rig.Screen().cmdChange, &rig.Screen().cmdRemove,
                                         &rig.Screen().cmdMoveUp, &rig.Screen().cmdMoveDown}) {
    EXPECT_FALSE(button->Reachable()) << button->Name();
  }
}

TEST(ConfigEntryList, FirstEntryIsSelectedAndTheSelectedEntryIsShown) {
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
  EXPECT_EQ(rig.Fields(), kEditor) << "the blanks at the ends are removed";
  EXPECT_EQ(rig.Screen().lblCount.Caption(), "(3 of 25)");
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(2))) << "the list was written before OK";
}

TEST(ConfigEntryList, ChangeReplacesTheSelectedEntry) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().lstPrograms.ChooseIndex(1);
  rig.Type(kGame);
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.form->Entries(), (Entries{SomeEntries(3)[0], kGame, SomeEntries(3)[2]}));
  EXPECT_EQ(rig.Rows(), (Names{"Program 0", "Game", "Program 2"}));
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 1);
}

TEST(ConfigEntryList, NothingMovesPastTheEndsOrWithoutASelection) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  // Acts like a late access key that gets past the disabled buttons.
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

TEST(ConfigEntryList, MissingFieldGetsTheKeyboardAfterTheMessage) {
  ConfigRig rig;
  rig.Start();
  const auto focus_after = [&rig](const launcher::LauncherEntry& typed, const ui::TextBox& missing) {
    rig.Type(typed);
    rig.Screen().cmdAdd.SetFocus();
    bool was_early = false;
    rig.machine.WhileBoxIsOpen([&] { was_early = missing.HasFocus(); });
    rig.Screen().cmdAdd.Press();
    EXPECT_FALSE(was_early) << "the box would give the focus back to the button";
    return missing.HasFocus();
  };
  EXPECT_TRUE(focus_after({"", "A.EXE", ""}, rig.Screen().txtName));
  EXPECT_TRUE(focus_after({"A", "", ""}, rig.Screen().txtPath));
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_TRUE(focus_after({"", "", ""}, rig.Screen().txtName))
      << "missing fields are reported one after the other";
}

TEST(ConfigEntryList, RemoveSelectsTheNextEntry) {
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

TEST(ConfigEntryList, RemoveKeepsTypedText) {
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

TEST(ConfigEntryList, MovingKeepsTheEntryAndTypedText) {
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

TEST(ConfigEntryList, AnotherRowAsksBeforeTypedTextIsLost) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().lstPrograms.ChooseIndex(2);
  EXPECT_EQ(rig.BoxText(1), kDiscardFields);
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 0) << "the default answer is No";
  EXPECT_EQ(rig.Fields(), kGame);
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().lstPrograms.ChooseIndex(2);
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[2]);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(3));
}

TEST(ConfigEntryList, NewEmptiesTheFieldsAndSelectsNothing) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Screen().cmdNew.Press();
  EXPECT_EQ(rig.Fields(), launcher::LauncherEntry{});
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), ui::ListBox::kNoSelection);
  EXPECT_TRUE(rig.Screen().txtName.HasFocus());
  EXPECT_FALSE(rig.Screen().cmdChange.Reachable());
  EXPECT_FALSE(rig.Screen().cmdRemove.Reachable());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  rig.Type(kEditor);
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.form->Entries(), (Entries{SomeEntries(2)[0], SomeEntries(2)[1], kEditor}));
}

TEST(ConfigEntryList, NewAsksBeforeTypedTextIsLost) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().cmdNew.Press();
  EXPECT_EQ(rig.BoxText(1),
            "What you typed in the fields is not in the list. To put it there, answer No and press \"Add\" "
            "or \"Change\".\r\n\r\nDo you want to discard it?");
  EXPECT_EQ(rig.Fields(), kGame) << "the default answer is No";
  EXPECT_EQ(rig.Screen().lstPrograms.SelectedIndex(), 0);
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().cmdNew.Press();
  EXPECT_EQ(rig.Fields(), launcher::LauncherEntry{});
}

TEST(ConfigEntryList, SecondAddOfTheSameEntryAsks) {
  ConfigRig rig;
  rig.Start();
  rig.Type(kEditor);
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  rig.Type({"EDITOR", "notepad.exe", "c:\\windows"});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.BoxText(1),
            "\"EDITOR\" is already in the list with the same command line and folder.\r\n\r\n"
            "Do you want to add it again?");
  EXPECT_EQ(rig.form->Entries(), Entries{kEditor}) << "the default answer is No";
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.Rows(), (Names{"Editor", "EDITOR"}));
}

TEST(ConfigEntryList, EntryThatDiffersInOneTextIsADifferentEntry) {
  ConfigRig rig(Entries{kEditor});
  rig.Start();
  for (const launcher::LauncherEntry& other : Entries{{"Other", kEditor.path, kEditor.start_in},
                                                      {kEditor.name, "EDIT.COM", kEditor.start_in},
                                                      {kEditor.name, kEditor.path, ""}}) {
    rig.Type(other);
    rig.Screen().cmdAdd.Press();
    EXPECT_EQ(rig.form->Entries().back(), other);
  }
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigEntryList, DelRemovesAndAltWithAnArrowMoves) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  ui::ListBox& list = rig.Screen().lstPrograms;
  list.PressRowKey(ui::RowKey::kMoveUp);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(3)) << "the first entry does not move up";
  list.PressRowKey(ui::RowKey::kMoveDown);
  EXPECT_EQ(rig.Rows(), (Names{"Program 1", "Program 0", "Program 2"}));
  EXPECT_EQ(list.SelectedIndex(), 1);
  list.PressRowKey(ui::RowKey::kMoveDown);
  list.PressRowKey(ui::RowKey::kMoveUp);
  list.PressRowKey(ui::RowKey::kMoveUp);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(3));
  list.PressRowKey(ui::RowKey::kRemove);
  EXPECT_EQ(rig.Rows(), (Names{"Program 1", "Program 2"}));
  EXPECT_EQ(rig.Fields(), SomeEntries(3)[1]);
  list.PressRowKey(ui::RowKey::kRemove);
  list.PressRowKey(ui::RowKey::kRemove);
  list.PressRowKey(ui::RowKey::kRemove);
  EXPECT_EQ(rig.Rows(), Names{});
}

TEST(ConfigEntryList, NameThatMeansADividingLineIsRefused) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type({" - ", "NOTEPAD.EXE", ""});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.BoxText(1),
            "The menu shows the name \"-\" as a dividing line.\r\n\r\nPlease type another name.");
  EXPECT_TRUE(rig.Screen().txtName.HasFocus());
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(1));
  rig.Type({"--", "NOTEPAD.EXE", ""});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.Rows().back(), "--");
}

TEST(ConfigEntryList, FolderLosesItsQuotationMarks) {
  ConfigRig rig;
  rig.Start();
  rig.Type({"Game", "G.EXE", " \"C:\\My Games\" "});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.form->Entries().back().start_in, "C:\\My Games");
  EXPECT_EQ(rig.Fields().start_in, "C:\\My Games");
  ConfigRig::TypeInto(rig.Screen().txtStartIn, "\"D:\\\"");
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.form->Entries().back().start_in, "D:\\");
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigEntryList, UnusableFolderCausesAQuestion) {
  const std::string question =
      "The launcher cannot use this folder and would show an error at each start. \"Start In:\" needs a "
      "drive letter, even for a network folder.\r\n\r\nDo you want to keep the folder anyway?";
  for (const char* const folder :
       {"\\\\SERVER\\SHARE", "\"\\\\SERVER\\SHARE\"", "\\GAMES", "GAMES", "1:\\"}) {
    ConfigRig rig;
    rig.Start();
    rig.Type({"Game", "G.EXE", folder});
    rig.Screen().cmdAdd.Press();
    EXPECT_EQ(rig.BoxText(1), question) << folder;
    EXPECT_TRUE(rig.Screen().txtStartIn.HasFocus());
    EXPECT_EQ(rig.Rows(), Names{}) << "the default answer is No";
    rig.machine.AnswerNextBox(os::kIdYes);
    rig.Screen().cmdAdd.Press();
    EXPECT_EQ(rig.Rows(), Names{"Game"});
    rig.Screen().cmdChange.Press();
    EXPECT_EQ(rig.BoxText(3), question) << folder;
  }
}

TEST(ConfigEntryList, SameRowAgainAsksNothing) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kGame);
  rig.Screen().lstPrograms.ChooseIndex(0);
  EXPECT_EQ(rig.Fields(), kGame);
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigEntryList, NameAndCommandLineAreRequired) {
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
  EXPECT_EQ(rig.BoxText(3), "Please type a command line, or press \"Browse...\" to find the program.");
  EXPECT_TRUE(rig.Screen().txtPath.HasFocus());
  rig.Type({"Editor", "", "\\\\server\\games"});
  rig.Screen().cmdChange.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 4U) << "the folder is not asked about before there is a command line";
  EXPECT_EQ(rig.machine.Boxes()[3].text, rig.machine.Boxes()[2].text);
  EXPECT_EQ(rig.form->Entries(), SomeEntries(1));
}

TEST(ConfigEntryList, TwentySixthEntryIsRefused) {
  ConfigRig rig(SomeEntries(24));
  rig.Start();
  rig.Type(kEditor);
  rig.Screen().cmdAdd.Press();
  rig.Type(kGame);
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.BoxText(1),
            "The launcher takes 25 programs at most.\r\n\r\nPlease remove one before you add another.");
  EXPECT_EQ(rig.form->Entries().size(), 25U);
  EXPECT_EQ(rig.Fields(), kGame) << "the typed text is kept";
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().lstPrograms.ChooseIndex(0);
  rig.Type(kGame);
  rig.Screen().cmdChange.Press();
  EXPECT_EQ(rig.form->Entries().front(), kGame) << "a full list can be changed";
}

TEST(ConfigEntryList, FieldsTakeNoMoreThanARecordHolds) {
  ConfigRig rig;
  rig.Start();
  rig.Type({std::string(60, 'n'), std::string(300, 'p'), "C:" + std::string(300, 's')});
  rig.Screen().cmdAdd.Press();
  EXPECT_EQ(rig.form->Entries(),
            (Entries{{std::string(55, 'n'), std::string(255, 'p'), "C:" + std::string(253, 's')}}));
}

}  // namespace
}  // namespace qdix::tests
