// "Restore Whole File...": the question, the new file, and the messages afterwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kThirdOfMay1999 = 36283.4;
constexpr const char* kKeptPath = "C:\\WINDOWS\\SYSTEM.Q01";
constexpr const char* kNotReplaced =
    "system.ini could not be replaced, and has not been changed.\r\n\r\nPlease make sure that it is not "
    "write-protected, that no other program has it open and that the disk is not full, and try again.";
constexpr const char* kReplaced =
    "system.ini has been replaced. The old file is now SYSTEM.Q01.\r\n\r\n"
    "If Windows does not start with the new one, start the computer at the command prompt and type:\r\n\r\n"
    "C:\r\n"
    "cd \\WINDOWS\r\n"
    "attrib -r system.ini\r\n"
    "copy /y SYSTEM.Q01 system.ini";
constexpr const char* kTemplateIsStillOwn =
    "\r\n\r\nThe file system template is still \"Quondix\". To put the old one back too, answer No to the "
    "next "
    "question and press \"Put Back\".";

class WholeFile : public testing::Test {
 protected:
  WholeFile() {
    rig.machine.SetNow(kThirdOfMay1999);
    rig.machine.WriteFile(kIniPath, kIniBefore);
    rig.machine.SetNow(kThirdOfMay1999 + 100);
    rig.TakeRecordAndChange();
    rig.Start();
    first_call = rig.machine.Calls().size();
  }
  void PressAndAnswer(const std::vector<int>& answers) {
    for (const int answer : answers) rig.machine.AnswerNextBox(answer);
    rig.Screen().cmdRestore.Press();
  }
  [[nodiscard]] std::string BoxText(std::size_t index) const {
    return index < rig.machine.Boxes().size() ? rig.machine.Boxes()[index].text : "no such box";
  }

  UndoRig rig;
  std::size_t first_call = 0;
};

TEST_F(WholeFile, QuestionShowsTheDateOfTheCopyAndDefaultsToNo) {
  rig.Screen().cmdRestore.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(BoxText(0),
            "All of system.ini will be replaced with system.qdix, the copy dated Monday, May 3, "
            "1999.\r\n\r\nYou will lose every change made to system.ini since that copy, including those "
            "made by Windows and other programs. The current file will be kept under another name.\r\n\r\nDo "
            "you want to replace system.ini?");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNo | os::kMbIconExclamation | os::kMbDefaultButton2);
}

TEST_F(WholeFile, QuestionOmitsAnUnreadableDate) {
  rig.machine.FailNextCall("FindFirstFileA");
  rig.Screen().cmdRestore.Press();
  EXPECT_EQ(BoxText(0),
            "All of system.ini will be replaced with system.qdix.\r\n\r\nYou will lose every change made to "
            "system.ini since that copy, including those made by Windows and other programs. The current "
            "file will be kept under another name.\r\n\r\nDo you want to replace system.ini?");
}

TEST_F(WholeFile, AnswerNoChangesNothing) {
  PressAndAnswer({os::kIdNo});
  EXPECT_THAT(rig.Changes(first_call), IsEmpty());
  EXPECT_EQ(rig.Ini(), kIniAfter);
}

TEST_F(WholeFile, AnswerYesWritesANewFileAndRenames) {
  PressAndAnswer({os::kIdYes, os::kIdOk, os::kIdNo});
  EXPECT_EQ(rig.Ini(), kIniBefore);
  EXPECT_EQ(rig.machine.ReadFile(kKeptPath), kIniAfter);
  EXPECT_THAT(
      rig.Changes(first_call),
      ElementsAre("WritePrivateProfileStringA(system.ini flushed)", "CreateFileA(C:\\WINDOWS\\SYSTEM.Q00, 2)",
                  "WriteFile(" + std::to_string(std::string(kIniBefore).size()) + ")",
                  "MoveFileA(C:\\WINDOWS\\system.ini, C:\\WINDOWS\\SYSTEM.Q01)",
                  "MoveFileA(C:\\WINDOWS\\SYSTEM.Q00, C:\\WINDOWS\\system.ini)"));
  EXPECT_TRUE(rig.machine.Misuses().empty());
  EXPECT_TRUE(rig.RecordIsUntouched());
  EXPECT_EQ(rig.Template(), "Quondix") << "the template is in the registry";
}

TEST_F(WholeFile, NewStateIsShownAndARestartIsOffered) {
  rig.SetTemplate("Desktop");
  PressAndAnswer({os::kIdYes, os::kIdOk, os::kIdYes});
  EXPECT_EQ(rig.Screen().MinFileCache.now.Caption(), "2048");
  EXPECT_FALSE(rig.Screen().MinFileCache.box.Enabled());
  ASSERT_EQ(rig.machine.Boxes().size(), 3U);
  EXPECT_EQ(BoxText(1), kReplaced);
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk | os::kMbIconInformation);
  EXPECT_EQ(BoxText(2), kRestartQuestion);
  EXPECT_EQ(rig.machine.RestartCount(), 1);
}

TEST_F(WholeFile, OwnTemplateStillInEffectIsReportedAndTicked) {
  rig.Screen().Template.box.SetTicked(false);
  PressAndAnswer({os::kIdYes, os::kIdOk, os::kIdNo});
  EXPECT_EQ(BoxText(1), std::string(kReplaced) + kTemplateIsStillOwn);
  EXPECT_TRUE(rig.Screen().Template.box.Ticked());
  EXPECT_TRUE(rig.Screen().cmdPutBack.Enabled());
}

TEST_F(WholeFile, OwnTemplateCanBeRemovedWithoutARecord) {
  UndoRig other;
  other.machine.WriteFile(kBackupPath, kIniBefore);
  other.SetTemplate("Quondix");
  other.Start();
  EXPECT_FALSE(other.Screen().Template.box.Enabled()) << "it is disabled until the file is restored";
  for (const int answer : {os::kIdYes, os::kIdOk, os::kIdNo}) other.machine.AnswerNextBox(answer);
  other.Screen().cmdRestore.Press();
  EXPECT_EQ(other.machine.Boxes()[1].text, std::string(kReplaced) + kTemplateIsStillOwn);
  EXPECT_TRUE(other.Screen().Template.box.Ticked());
  for (const int answer : {os::kIdYes, os::kIdNo}) other.machine.AnswerNextBox(answer);
  other.Screen().cmdPutBack.Press();
  ASSERT_EQ(other.machine.Boxes().size(), 5U) << "question, result and restart, then question and restart";
  EXPECT_EQ(other.machine.Boxes()[3].text,
            "Q-DIX Undo will make these changes:\r\n\r\nFile system template: remove (not "
            "recorded)\r\n\r\nDo you want to put these settings back?");
  EXPECT_EQ(other.Template(), std::nullopt);
}

TEST_F(WholeFile, ForeignTemplateIsNotMentioned) {
  UndoRig other;
  other.machine.WriteFile(kBackupPath, kIniBefore);
  other.Start();
  for (const int answer : {os::kIdYes, os::kIdOk, os::kIdNo}) other.machine.AnswerNextBox(answer);
  other.Screen().cmdRestore.Press();
  EXPECT_EQ(other.machine.Boxes()[1].text, kReplaced);
  EXPECT_FALSE(other.Screen().Template.box.Enabled());
}

TEST_F(WholeFile, MissingSystemIniIsCreatedAndNoOtherNameIsMentioned) {
  rig.machine.EraseFile(kIniPath);
  rig.SetTemplate("Desktop");
  PressAndAnswer({os::kIdYes, os::kIdOk, os::kIdNo});
  EXPECT_EQ(rig.Ini(), kIniBefore);
  EXPECT_EQ(BoxText(1), "system.ini has been replaced.");
}

TEST_F(WholeFile, FailureIsReportedWithoutARestart) {
  rig.machine.ProtectFile(kIniPath);
  PressAndAnswer({os::kIdYes, os::kIdOk});
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(BoxText(1),
            "system.ini could not be replaced, and has not been changed.\r\n\r\n"
            "Please make sure that it is not write-protected, that no other program has it open and that the "
            "disk is not full, and try again.");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_EQ(rig.Ini(), kIniAfter);
  EXPECT_EQ(rig.machine.RestartCount(), 0);
}

TEST_F(WholeFile, FileThatLostItsNameIsReported) {
  // The new file is created and filled and the first rename done; nothing after that reaches the disk.
  constexpr int kLastGoodWrite = 3;
  rig.machine.CutPowerInDiskWrite(rig.machine.DiskWriteCount() + kLastGoodWrite + 1);
  PressAndAnswer({os::kIdYes, os::kIdOk});
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(BoxText(1),
            "system.ini could not be replaced, and is now called SYSTEM.Q01. Rename it to system.ini before "
            "you restart: Windows cannot start without it.");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_EQ(rig.machine.ReadFile(kIniPath), std::nullopt);
  EXPECT_EQ(rig.machine.ReadFile(kKeptPath), kIniAfter);
  EXPECT_EQ(rig.Screen().lblState.Caption(),
            "Warning: system.ini is missing. Windows cannot start without it. Restore the whole file before "
            "you restart.");
}

TEST_F(WholeFile, FileHeldByAnotherProgramStaysUnchanged) {
  rig.machine.LockFile(kIniPath);
  PressAndAnswer({os::kIdYes, os::kIdOk});
  EXPECT_EQ(BoxText(1), kNotReplaced);
  EXPECT_EQ(rig.Ini(), kIniAfter);
  EXPECT_EQ(rig.machine.ReadFile("C:\\WINDOWS\\SYSTEM.Q00"), std::nullopt);
}

TEST_F(WholeFile, BackupDamagedSinceTheStartIsNotUsed) {
  rig.machine.WhileBoxIsOpen([this] {
    if (rig.machine.Boxes().size() == 1) rig.machine.WriteFile(kBackupPath, "[boot]\r\nshel");
  });
  PressAndAnswer({os::kIdYes, os::kIdOk});
  EXPECT_EQ(BoxText(1), kNotReplaced);
  EXPECT_EQ(rig.Ini(), kIniAfter);
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
}

TEST_F(WholeFile, BackupIsReadAgainBeforeTheQuestion) {
  rig.machine.WriteFile(kBackupPath, "[boot]\r\n");
  rig.Screen().cmdRestore.Press();
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
  EXPECT_EQ(rig.Ini(), kIniAfter);
}

TEST_F(WholeFile, EndOfTheSessionDuringTheQuestionReplacesNothing) {
  rig.machine.WhileBoxIsOpen([this] { rig.form->EndSession(); });
  PressAndAnswer({os::kIdYes});
  EXPECT_THAT(rig.Changes(first_call), IsEmpty());
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST_F(WholeFile, WindowClosedDuringTheResultOffersNoRestart) {
  rig.machine.WhileBoxIsOpen([this] {
    if (rig.machine.Boxes().size() == 2) rig.form->Form().Unload();
  });
  PressAndAnswer({os::kIdYes, os::kIdOk, os::kIdYes});
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(rig.machine.RestartCount(), 0);
}

TEST_F(WholeFile, WindowsInARootFolder) {
  UndoRig other;
  other.machine.SetWindowsDirectory("D:\\");
  other.machine.WriteFile("D:\\system.ini", kIniBefore);
  other.TakeRecord();
  other.machine.WriteFile("D:\\system.ini", kIniAfter);
  other.Start();
  for (const int answer : {os::kIdYes, os::kIdOk, os::kIdNo}) other.machine.AnswerNextBox(answer);
  other.Screen().cmdRestore.Press();
  EXPECT_EQ(other.machine.ReadFile("D:\\system.ini"), kIniBefore);
  EXPECT_NE(other.machine.Boxes()[1].text.find("type:\r\n\r\nD:\r\ncd \\\r\nattrib -r system.ini\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace qdix::tests
