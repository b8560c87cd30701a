// "Restore Whole File...": the warning, the copy, its failure.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WholeFile : public testing::Test {
 protected:
  WholeFile() {
    rig.TakeRecordAndChange();
    rig.Start();
    first_call = rig.machine.Calls().size();
  }
  void PressAndAnswer(int answer, int next_answer = os::kIdNo) {
    rig.machine.AnswerNextBox(answer);
    rig.machine.AnswerNextBox(next_answer);
    rig.Screen().cmdRestore.Press();
  }

  UndoRig rig;
  std::size_t first_call = 0;
};

TEST_F(WholeFile, QuestionWarnsAndProposesNo) {
  rig.Screen().cmdRestore.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(
      rig.machine.Boxes()[0].text,
      "All of system.ini will be replaced by system.qdix, the copy that was made before the first "
      "change.\r\n\r\n"
      "Every other change that was made to system.ini since then will be lost, also those by Windows and "
      "by other programs.\r\n\r\n"
      "Do you want to replace system.ini?");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNo | os::kMbIconExclamation | os::kMbDefaultButton2);
}

TEST_F(WholeFile, NoChangesNothing) {
  PressAndAnswer(os::kIdNo);
  EXPECT_THAT(rig.Changes(first_call), IsEmpty());
  EXPECT_EQ(rig.Ini(), kIniAfter);
}

TEST_F(WholeFile, YesCopiesTheBackupByteForByteAfterAFlush) {
  PressAndAnswer(os::kIdYes);
  EXPECT_EQ(rig.Ini(), kIniBefore);
  EXPECT_THAT(rig.Changes(first_call),
              ElementsAre("WritePrivateProfileStringA(system.ini flushed)",
                          "CopyFileA(C:\\WINDOWS\\system.qdix, C:\\WINDOWS\\system.ini)"));
  EXPECT_TRUE(rig.machine.Misuses().empty());
  EXPECT_TRUE(rig.RecordIsUntouched());
  EXPECT_EQ(rig.Template(), "Quondix") << "it stands in the registry";
}

TEST_F(WholeFile, NewStateIsShownAndTheRestartOffered) {
  PressAndAnswer(os::kIdYes, os::kIdYes);
  EXPECT_EQ(rig.Screen().MinFileCache.now.Caption(), "2048");
  EXPECT_FALSE(rig.Screen().MinFileCache.box.Enabled());
  EXPECT_TRUE(rig.Screen().Template.box.Ticked());
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_TRUE(rig.machine.Boxes()[1].text.starts_with("You must restart your computer"));
  EXPECT_EQ(rig.machine.RestartCount(), 1);
}

TEST_F(WholeFile, FailedCopyIsSaidAndOffersNoRestart) {
  rig.machine.ProtectFile(kIniPath);
  PressAndAnswer(os::kIdYes, os::kIdOk);
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(rig.machine.Boxes()[1].text,
            "system.ini could not be replaced.\r\n\r\n"
            "Please make sure that it is not write-protected and that no other program has it open, and try "
            "again.");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_EQ(rig.Ini(), kIniAfter);
  EXPECT_EQ(rig.machine.RestartCount(), 0);
}

TEST_F(WholeFile, SessionThatEndsInTheQuestionCopiesNothing) {
  rig.machine.WhileBoxIsOpen([this] { rig.form->EndSession(); });
  PressAndAnswer(os::kIdYes);
  EXPECT_THAT(rig.Changes(first_call), IsEmpty());
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST_F(WholeFile, WindowsInARootFolder) {
  UndoRig other;
  other.machine.SetWindowsDirectory("D:\\");
  other.machine.WriteFile("D:\\system.ini", kIniBefore);
  other.TakeRecord();
  other.machine.WriteFile("D:\\system.ini", kIniAfter);
  other.Start();
  other.machine.AnswerNextBox(os::kIdYes);
  other.machine.AnswerNextBox(os::kIdNo);
  other.Screen().cmdRestore.Press();
  EXPECT_EQ(other.machine.ReadFile("D:\\system.ini"), kIniBefore);
}

}  // namespace
}  // namespace qdix::tests
