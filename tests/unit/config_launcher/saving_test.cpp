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
  EXPECT_TRUE(rig.form->Form().Unloaded());
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

TEST(ConfigSaving, FilesAreRenamedInTheSafeOrder) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Screen().cmdRemove.Press();
  rig.Screen().cmdOK.Press();
  const std::string folder = "C:\\Program Files\\QDIX\\launcher.";
  EXPECT_EQ(rig.Changes(),
            (Names{"WriteFile(565)", "FlushFileBuffers()", "MoveFileA(" + folder + "dat, " + folder + "bak)",
                   "MoveFileA(" + folder + "tmp, " + folder + "dat)", "DeleteFileA(" + folder + "bak)"}));
}

TEST(ConfigSaving, ListsOfAnyLengthAreReadBackUnchanged) {
  for (const int count : {0, 1, 2, 24, 25}) {
    ConfigRig rig(SomeEntries(count));
    rig.Start();
    rig.Screen().cmdOK.Press();
    EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(count)));
    rig.Restart();
    EXPECT_EQ(rig.form->Entries(), SomeEntries(count));
  }
}

TEST(ConfigSaving, FieldsThatWereNotAddedCauseAQuestion) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kEditor);
  rig.Screen().cmdOK.Press();
  EXPECT_EQ(rig.BoxText(1), kSaveWithoutFields);
  EXPECT_FALSE(rig.form->Form().Unloaded()) << "the default answer is No";
  EXPECT_EQ(rig.Fields(), kEditor);
  EXPECT_EQ(rig.Changes(), Names{});
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(1)));
}

TEST(ConfigSaving, FieldsChangedBackCauseNoQuestion) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  rig.Type(kEditor);
  rig.Type(SomeEntries(1)[0]);
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigClosing, UnchangedListClosesAtOnce) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().lstPrograms.ChooseIndex(1);
  rig.Screen().cmdMoveUp.Press();
  rig.Screen().cmdMoveDown.Press();
  rig.Screen().cmdCancel.Press();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Changes(), Names{});
}

TEST(ConfigClosing, CancelAndCloseAskAboutChanges) {
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
          rig.form->Form().Close();
        } else {
          rig.Screen().cmdCancel.Press();
        }
      };
      close();
      EXPECT_EQ(rig.BoxText(1), "Do you want to discard your changes?");
      EXPECT_FALSE(rig.form->Form().Unloaded()) << "the default answer is No";
      rig.machine.AnswerNextBox(os::kIdYes);
      close();
      EXPECT_TRUE(rig.form->Form().Unloaded());
      EXPECT_EQ(rig.Changes(), Names{});
    }
  }
}

TEST(ConfigClosing, IsIgnoredDuringAQuestion) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().cmdMoveDown.Press();
  rig.machine.WhileBoxIsOpen([&rig] { rig.form->Form().Close(); });
  rig.Screen().cmdCancel.Press();
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_FALSE(rig.form->Form().Unloaded());
}

constexpr const char* kNotSaved = "The list of programs has not been saved.\r\n\r\nDo you want to save it?";

TEST(ConfigClosing, SessionMayEndAtOnceIfNothingIsLost) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  EXPECT_TRUE(rig.form->MaySessionEnd());
  EXPECT_FALSE(rig.form->Form().Unloaded()) << "another program may still refuse to end the session";
  rig.Screen().cmdCancel.Press();
  EXPECT_TRUE(rig.form->MaySessionEnd());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
}

TEST(ConfigClosing, EndingSessionAsksAboutTheList) {
  for (const int answer : {os::kIdYes, os::kIdNo, os::kIdCancel, os::kIdNone}) {
    ConfigRig rig(SomeEntries(2));
    rig.Start();
    rig.Screen().cmdMoveDown.Press();
    rig.machine.AnswerNextBox(answer);
    EXPECT_EQ(rig.form->MaySessionEnd(), answer != os::kIdCancel) << answer;
    EXPECT_EQ(rig.BoxText(1), kNotSaved);
    EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNoCancel | os::kMbIconQuestion);
    EXPECT_FALSE(rig.form->Form().Unloaded());
    const bool is_saved = rig.ListOnDisk() == BytesOf({SomeEntries(2)[1], SomeEntries(2)[0]});
    EXPECT_EQ(is_saved, answer == os::kIdYes) << answer;
    if (is_saved) {
      EXPECT_TRUE(rig.form->MaySessionEnd());
      EXPECT_EQ(rig.machine.Boxes().size(), 1U) << "the list is already saved";
    }
  }
}

TEST(ConfigClosing, EndingSessionAlsoAsksAboutTypedText) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Type(kEditor);
  EXPECT_FALSE(rig.form->MaySessionEnd())
      << "the answers are Yes to saving, then No to saving without typed text";
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, kNotSaved);
  EXPECT_EQ(rig.machine.Boxes()[1].text, kSaveWithoutFields);
  EXPECT_EQ(rig.Fields(), kEditor);
}

TEST(ConfigClosing, SessionContinuesIfTheListCannotBeSaved) {
  ConfigRig rig(SomeEntries(2));
  rig.Start();
  rig.Screen().cmdMoveDown.Press();
  rig.machine.ProtectDisk();
  EXPECT_FALSE(rig.form->MaySessionEnd());
  EXPECT_EQ(rig.BoxText(2), kCouldNotBeSaved);
  EXPECT_FALSE(rig.form->Form().Unloaded());
}

/// Windows reaches a minimised window either by a call of Q-DIX or by an action of the user.
TEST(ConfigActivation, OnlyQdixRestoresTheMinimisedWindow) {
  ConfigRig rig(SomeEntries(1));
  rig.Start();
  const os::WindowHandle taskbar = rig.machine.OpenWindow("Shell_TrayWnd", "");
  os::Windows& windows = rig.machine.GetSystem().windows;
  ui::Form& window = rig.form->Form();
  window.UserChangedState(ui::WindowState::kMinimised);
  rig.form->ActivatedMinimised(0);
  EXPECT_EQ(window.State(), ui::WindowState::kMinimised) << "without Q-DIX there is no previous thread";
  const os::WindowHandle qdix = rig.machine.OpenWindow("ThunderRT6Main", "Q-DIX");
  for (const std::uint32_t thread : {1U, windows.GetWindowThreadProcessId(taskbar)}) {
    rig.form->ActivatedMinimised(thread);
    EXPECT_EQ(window.State(), ui::WindowState::kMinimised) << thread;
  }
  for (const std::uint32_t thread : {windows.GetWindowThreadProcessId(qdix), 0U}) {
    window.UserChangedState(ui::WindowState::kMinimised);
    rig.form->ActivatedMinimised(thread);
    EXPECT_EQ(window.State(), ui::WindowState::kNormal) << thread;
  }
}

TEST(ConfigClosing, EndOfTheSessionAsksAndWritesNothing) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Screen().cmdMoveDown.Press();
  rig.Type(kEditor);
  rig.form->EndSession();
  EXPECT_TRUE(rig.form->TheApplication().SessionIsEnding());
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.machine.Boxes().size(), 0U);
  EXPECT_EQ(rig.Changes(), Names{});
}

TEST(ConfigClosing, EndOfTheSessionDuringAQuestionIsNoAnswer) {
  ConfigRig rig(SomeEntries(3));
  rig.Start();
  rig.Type(kEditor);
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.machine.WhileBoxIsOpen([&rig] {
    rig.machine.EndBoxes();
    rig.form->EndSession();
  });
  rig.Screen().cmdOK.Press();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  EXPECT_EQ(rig.Changes(), Names{});
}

}  // namespace
}  // namespace qdix::tests
