// Writing the list, and closing the window without writing it.
#include <gtest/gtest.h>

#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

using Names = std::vector<std::string>;

const launcher::LauncherEntry kEditor{"Caf\xE9", "NOTEPAD.EXE", "C:\\WINDOWS"};

TEST(ConfigSaving, ListIsWrittenByteForByteAndNothingIsLeftBehind) {
  ConfigRig rig;
  rig.Start();
  rig.Type(kEditor);
  rig.Screen().cmdAdd.Press();
  rig.Type({"Game", "\"C:\\My Games\\G.EXE\"", ""});
  rig.Screen().cmdAdd.Press();
  rig.Screen().cmdMoveUp.Press();
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.ListOnDisk(), "Game" + std::string(51, ' ') + "\"C:\\My Games\\G.EXE\"" +
                                  std::string(236, ' ') + std::string(255, ' ') + "Caf\xE9" +
                                  std::string(51, ' ') + "NOTEPAD.EXE" + std::string(244, ' ') +
                                  "C:\\WINDOWS" + std::string(245, ' '));
  EXPECT_EQ(rig.machine.ReadFile(kListTemporaryPath), std::nullopt);
  EXPECT_EQ(rig.machine.ReadFile(kListBackupPath), std::nullopt);
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.machine.Misuses(), Names{});
  EXPECT_EQ(rig.machine.OpenFileCount(), 0);
}

TEST(ConfigSaving, NamesChangeHandsInTheSafeOrder) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Screen().cmdRemove.Press();
  rig.Screen().cmdOK.Press();
  const std::string folder = "C:\\Program Files\\QDIX\\launcher.";
  EXPECT_EQ(rig.Changes(),
            (Names{"WriteFile(565)", "FlushFileBuffers()", "MoveFileA(" + folder + "dat, " + folder + "bak)",
                   "MoveFileA(" + folder + "tmp, " + folder + "dat)", "DeleteFileA(" + folder + "bak)"}));
}

TEST(ConfigSaving, ListsOfAnyCountComeBackAsTheyWere) {
  for (const int count : {0, 1, 2, 24, 25}) {
    ConfigRig rig(SomeEntries(count));
    rig.Start();
    rig.Screen().cmdOK.Press();
    EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(count)));
    rig.Restart();
    EXPECT_EQ(rig.form->Entries(), SomeEntries(count));
  }
}

TEST(ConfigSaving, FieldsThatWereNotAddedAreAskedFor) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kEditor);
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.BoxText(1).starts_with("What you typed in the fields is not in the list."));
  EXPECT_FALSE(rig.form->Window().Unloaded()) << "No is the default";
  EXPECT_EQ(rig.Fields(), kEditor);
  EXPECT_EQ(rig.Changes(), Names{});
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(1)));
}

TEST(ConfigSaving, FieldsTypedBackToWhatTheyWereAreNotAskedFor) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kEditor);
  rig.Type(SomeEntries(1)[0]);
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigClosing, UnchangedListClosesAtOnce) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().lstPrograms.ChooseIndex(1);
  rig.Screen().cmdMoveUp.Press();
  rig.Screen().cmdMoveDown.Press();
  rig.Screen().cmdCancel.Press();
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Changes(), Names{});
}

TEST(ConfigClosing, ChangesAreAskedForByCancelAndByTheWindow) {
  for (const bool by_window : {false, true}) {
    for (const bool typed_only : {false, true}) {
      ConfigRig rig(SomeEntries(3));
      rig.Start();
      if (typed_only) {
        ConfigRig::TypeInto(rig.Screen().txtName, "x");
      } else {
        rig.Screen().cmdMoveDown.Press();
      }
      const auto close = [&rig, by_window] {
        if (by_window) {
          rig.form->Window().Close();
        } else {
          rig.Screen().cmdCancel.Press();
        }
      };
      close();
      EXPECT_EQ(rig.BoxText(1), "Discard the changes?");
      EXPECT_FALSE(rig.form->Window().Unloaded()) << "No is the default";
      rig.machine.AnswerNextBox(os::kIdYes);
      close();
      EXPECT_TRUE(rig.form->Window().Unloaded());
      EXPECT_EQ(rig.Changes(), Names{});
    }
  }
}

TEST(ConfigClosing, NotUnderAnOpenQuestion) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().cmdMoveDown.Press();
  rig.machine.WhileBoxIsOpen([&rig] { rig.form->Window().Close(); });
  rig.Screen().cmdCancel.Press();
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_FALSE(rig.form->Window().Unloaded());
}

TEST(ConfigClosing, EndOfTheSessionAsksAndWritesNothing) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().cmdMoveDown.Press();
  rig.Type(kEditor);
  rig.form->EndSession();
  EXPECT_TRUE(rig.form->TheApplication().SessionIsEnding());
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Changes(), Names{});
}

TEST(ConfigClosing, EndOfTheSessionUnderAQuestionIsNoAnswer) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Type(kEditor);
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.machine.WhileBoxIsOpen([&rig] {
    rig.machine.EndBoxes();
    rig.form->EndSession();
  });
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Window().Unloaded());
  EXPECT_EQ(rig.Changes(), Names{});
}

}  // namespace
}  // namespace qdix::tests
