// "Put Back": the question, what is written and what is not, and the messages afterwards.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PutBack : public testing::Test {
 protected:
  void StartChanged() {
    rig.TakeRecordAndChange();
    rig.Start();
    first_call = rig.machine.Calls().size();
  }
  void UntickAllBut(undo::EntryRow& kept) {
    for (undo::EntryRow* const row : rig.Screen().Rows()) {
      if (row != &kept) row->box.SetTicked(false);
    }
  }
  void PressAndAnswer(int answer, int restart_answer = os::kIdNo) {
    rig.machine.AnswerNextBox(answer);
    rig.machine.AnswerNextBox(restart_answer);
    rig.Screen().cmdPutBack.Press();
  }
  [[nodiscard]] std::string BoxText(std::size_t index) const {
    return index < rig.machine.Boxes().size() ? rig.machine.Boxes()[index].text : "no such box";
  }

  UndoRig rig;
  std::size_t first_call = 0;
};

/// Presses "Put Back", agrees, and declines the restart.
void ConfirmPutBack(UndoRig& rig) {
  rig.machine.AnswerNextBox(os::kIdYes);
  rig.machine.AnswerNextBox(os::kIdNo);
  rig.Screen().cmdPutBack.Press();
}

TEST_F(PutBack, QuestionNamesEachActionAndProposesNo) {
  StartChanged();
  rig.TickAll();
  rig.Screen().cmdPutBack.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(BoxText(0),
            "Q-DIX Undo will make these changes:\r\n\r\n[vcache] MinFileCache: put back 2048\r\n[vcache] "
            "MaxFileCache: remove\r\n[vcache] ChunkSize: remove\r\nFile system template: put back "
            "Desktop\r\n[386Enh] PagingDrive: put back D:\r\n[386Enh] MinPagingFileSize: put back 0 (from "
            "backup)\r\n[386Enh] MaxPagingFileSize: remove\r\n[386Enh] Paging: remove (not in "
            "backup)\r\n\r\nDo you want to put these settings back?");
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX Undo");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNo | os::kMbIconQuestion | os::kMbDefaultButton2);
}

TEST_F(PutBack, AnswerNoWritesNothing) {
  StartChanged();
  PressAndAnswer(os::kIdNo);
  EXPECT_THAT(rig.Changes(first_call), IsEmpty());
  EXPECT_EQ(rig.Ini(), kIniAfter);
  EXPECT_EQ(rig.Template(), "Quondix");
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_TRUE(rig.Screen().cmdPutBack.Enabled()) << "the user can try again";
}

TEST_F(PutBack, AnswerYesPutsBackEverythingAndNothingElse) {
  StartChanged();
  rig.TickAll();
  PressAndAnswer(os::kIdYes);
  EXPECT_EQ(rig.Ini(), kIniPutBack);
  EXPECT_EQ(rig.Template(), "Desktop");
  EXPECT_THAT(
      rig.Changes(first_call),
      ElementsAre("WritePrivateProfileStringA(system.ini [vcache] MinFileCache 2048)",
                  "WritePrivateProfileStringA(system.ini [vcache] MaxFileCache removed)",
                  "WritePrivateProfileStringA(system.ini [vcache] ChunkSize removed)",
                  "RegSetValueExA(HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates: )",
                  "WritePrivateProfileStringA(system.ini [386Enh] PagingDrive D:)",
                  "WritePrivateProfileStringA(system.ini [386Enh] MinPagingFileSize 0)",
                  "WritePrivateProfileStringA(system.ini [386Enh] MaxPagingFileSize removed)",
                  "WritePrivateProfileStringA(system.ini [386Enh] Paging removed)",
                  "WritePrivateProfileStringA(system.ini flushed)"));
  EXPECT_TRUE(rig.RecordIsUntouched());
}

/// Windows 95 and later hold written entries in memory, so the file itself would still have the old ones.
TEST_F(PutBack, SystemIniIsFlushedBeforeItIsReadAgain) {
  StartChanged();
  UntickAllBut(rig.Screen().ChunkSize);
  PressAndAnswer(os::kIdYes);
  const std::vector<std::string> calls(rig.machine.Calls().begin() + static_cast<std::ptrdiff_t>(first_call),
                                       rig.machine.Calls().end());
  const auto flush = std::find(calls.begin(), calls.end(), "WritePrivateProfileStringA(system.ini flushed)");
  ASSERT_NE(flush, calls.end());
  const auto is_write = [](const std::string& call) {
    return call.starts_with("WritePrivateProfileStringA(") && !call.ends_with(" flushed)");
  };
  const auto is_read = [](const std::string& call) {
    return call == "CreateFileA(C:\\WINDOWS\\system.ini, 3)";
  };
  EXPECT_TRUE(std::none_of(flush, calls.end(), is_write));
  EXPECT_TRUE(std::any_of(flush, calls.end(), is_read)) << "it is read again";
}

TEST_F(PutBack, NewStateIsShownAndARestartIsOffered) {
  StartChanged();
  rig.TickAll();
  PressAndAnswer(os::kIdYes);
  EXPECT_EQ(rig.Screen().MinFileCache.now.Caption(), "2048");
  EXPECT_EQ(rig.Screen().MaxFileCache.now.Caption(), "(none)");
  EXPECT_EQ(rig.Screen().Template.now.Caption(), "Desktop");
  for (const undo::EntryRow* const row : rig.Screen().Rows()) {
    EXPECT_FALSE(row->box.Enabled()) << row->box.Caption();
    EXPECT_FALSE(row->box.Ticked()) << row->box.Caption();
  }
  EXPECT_FALSE(rig.Screen().cmdPutBack.Enabled());
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(BoxText(1), kRestartQuestion);
  EXPECT_EQ(rig.machine.RestartCount(), 0);
  EXPECT_FALSE(rig.form->Form().Unloaded());
}

TEST_F(PutBack, RestartIsRequestedOnceIfTheUserAgrees) {
  StartChanged();
  PressAndAnswer(os::kIdYes, os::kIdYes);
  EXPECT_EQ(rig.machine.RestartCount(), 1);
  EXPECT_EQ(rig.machine.Calls().back(), "ExitWindowsEx(2, 0)");
  EXPECT_TRUE(rig.form->Form().Unloaded());
}

TEST_F(PutBack, OnlyTickedEntriesAreListedAndWritten) {
  StartChanged();
  UntickAllBut(rig.Screen().PagingDrive);
  PressAndAnswer(os::kIdYes);
  EXPECT_EQ(BoxText(0),
            "Q-DIX Undo will make these changes:\r\n\r\n[386Enh] PagingDrive: put back D:\r\n\r\nDo you want "
            "to put these settings back?");
  std::string expected = kIniAfter;
  expected.replace(expected.find("PagingDrive=C:"), 14, "PagingDrive=D:");
  EXPECT_EQ(rig.Ini(), expected);
  EXPECT_EQ(rig.Template(), "Quondix");
  EXPECT_FALSE(rig.Screen().PagingDrive.box.Enabled());
  EXPECT_TRUE(rig.Screen().MinFileCache.box.Enabled());
  EXPECT_FALSE(rig.Screen().MinFileCache.box.Ticked()) << "an entry that was left out stays left out";
}

TEST_F(PutBack, TemplateThatDidNotExistIsRemoved) {
  UndoRig other(kIniBefore, "");
  other.TakeRecord();
  other.SetTemplate("Quondix");
  other.Start();
  EXPECT_EQ(other.Screen().Template.before.Caption(), "(none)");
  ConfirmPutBack(other);
  EXPECT_EQ(other.machine.Boxes()[0].text,
            "Q-DIX Undo will make these changes:\r\n\r\nFile system template: remove\r\n\r\nDo you want to "
            "put these settings back?");
  EXPECT_EQ(other.Template(), std::nullopt);
  EXPECT_EQ(other.Screen().Template.now.Caption(), "(none)");
  EXPECT_EQ(other.Ini(), kIniBefore);
}

TEST_F(PutBack, WriteProtectedFileIsNamedEntryByEntry) {
  StartChanged();
  rig.TickAll();
  rig.machine.ProtectFile(kIniPath);
  PressAndAnswer(os::kIdYes);
  ASSERT_GE(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(BoxText(1),
            "These settings could not be put back:\r\n\r\n"
            "[vcache] MinFileCache\r\n[vcache] MaxFileCache\r\n[vcache] ChunkSize\r\n"
            "[386Enh] PagingDrive\r\n[386Enh] MinPagingFileSize\r\n[386Enh] MaxPagingFileSize\r\n"
            "[386Enh] Paging\r\n\r\n"
            "Please make sure that system.ini is not write-protected, and try again.");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_EQ(rig.Ini(), kIniAfter);
  EXPECT_EQ(rig.Template(), "Desktop");
  EXPECT_EQ(BoxText(2), kRestartQuestion) << "the template was changed";
  EXPECT_TRUE(rig.Screen().MinFileCache.box.Ticked()) << "the entry is ready for another try";
}

TEST_F(PutBack, NoRestartIsOfferedIfNothingChanged) {
  StartChanged();
  rig.machine.ProtectFile(kIniPath);
  UntickAllBut(rig.Screen().ChunkSize);
  PressAndAnswer(os::kIdYes);
  ASSERT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(BoxText(1),
            "These settings could not be put back:\r\n\r\n[vcache] ChunkSize\r\n\r\n"
            "Please make sure that system.ini is not write-protected, and try again.");
}

TEST_F(PutBack, ProtectedTemplateKeyIsNamed) {
  StartChanged();
  rig.machine.DenyWrites(os::kHkeyLocalMachine, tuning::kTemplatesKey);
  UntickAllBut(rig.Screen().Template);
  PressAndAnswer(os::kIdYes);
  EXPECT_TRUE(BoxText(1).find("\r\n\r\nFile system template\r\n\r\n") != std::string::npos) << BoxText(1);
  EXPECT_EQ(rig.Template(), "Quondix");
}

TEST_F(PutBack, SettingsAreReadAgainBeforeTheQuestion) {
  StartChanged();
  rig.machine.WriteFile(kIniPath, kIniBefore);
  rig.SetTemplate("Other");
  PressAndAnswer(os::kIdNo);
  EXPECT_EQ(BoxText(0),
            "Q-DIX Undo will make these changes:\r\n\r\nFile system template: put back Desktop\r\n\r\nDo you "
            "want to put these settings back?");
}

TEST_F(PutBack, NothingIsAskedIfNothingIsLeftToPutBack) {
  StartChanged();
  rig.machine.WriteFile(kIniPath, kIniBefore);
  rig.SetTemplate("Desktop");
  rig.Screen().cmdPutBack.Press();
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_FALSE(rig.Screen().cmdPutBack.Enabled());
}

TEST_F(PutBack, EndOfTheSessionDuringTheQuestionWritesNothing) {
  StartChanged();
  rig.machine.WhileBoxIsOpen([this] { rig.form->EndSession(); });
  PressAndAnswer(os::kIdYes);
  EXPECT_THAT(rig.Changes(first_call), IsEmpty());
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_TRUE(rig.form->TheApplication().SessionIsEnding());
}

TEST_F(PutBack, WindowClosedDuringTheListOfFailuresOffersNoRestart) {
  StartChanged();
  rig.machine.ProtectFile(kIniPath);
  rig.machine.WhileBoxIsOpen([this] {
    if (rig.machine.Boxes().size() == 2) rig.form->Form().Unload();
  });
  PressAndAnswer(os::kIdYes);
  EXPECT_EQ(rig.machine.Boxes().size(), 2U);
  EXPECT_EQ(rig.Template(), "Desktop");
}

TEST_F(PutBack, ExactTextsOfTheBackupAreRestored) {
  const std::string before =
      "[boot]\r\n[386Enh]\r\nMinPagingFileSize=1,024\r\n"
      "[vcache]\r\nMinFileCache=2048 KB\r\nMaxFileCache=1,024\r\nChunkSize=none\r\n";
  UndoRig other(before);
  other.TakeRecord();
  other.machine.WriteFile(kIniPath,
                          "[boot]\r\n[386Enh]\r\nMinPagingFileSize=1024\r\n"
                          "[vcache]\r\nMinFileCache=2048\r\nMaxFileCache=1\r\nChunkSize=512\r\n");
  other.Start();
  EXPECT_EQ(other.Screen().MinFileCache.before.Caption(), "2048 KB");
  ConfirmPutBack(other);
  EXPECT_EQ(other.Ini(), before);
}

TEST_F(PutBack, BlanksAndQuotationMarksOfAValueAreRestored) {
  UndoRig other("[boot]\r\n[386Enh]\r\nPagingDrive=\"D: \"\r\nPaging=\"'on'\"\r\n");
  other.TakeRecord();
  other.machine.WriteFile(kIniPath, "[boot]\r\n[386Enh]\r\nPagingDrive=C:\r\n");
  other.Start();
  ConfirmPutBack(other);
  EXPECT_EQ(other.Ini(), "[boot]\r\n[386Enh]\r\nPagingDrive=\"D: \"\r\nPaging=\"'on'\"\r\n");
  EXPECT_EQ(other.machine.Boxes().size(), 2U) << "there is nothing left to put back";
}

void ExpectRestored(const std::string& drive) {
  UndoRig other("[boot]\r\n[386Enh]\r\nPagingDrive=" + drive + "\r\n");
  const std::string before = other.Ini();
  other.TakeRecord();
  other.machine.WriteFile(kIniPath, "[boot]\r\n[386Enh]\r\nPagingDrive=C:\r\n");
  other.Start();
  ConfirmPutBack(other);
  EXPECT_EQ(other.Ini(), before);
}

TEST_F(PutBack, DoubleQuotationMarksInsideQuotationMarksAreRestored) { ExpectRestored("\"\"D:\"\""); }

TEST_F(PutBack, TextEqualToTheDefaultIsAnOrdinaryEntry) {
  for (const char* const text : {"(missing)", "(none)"}) ExpectRestored(text);
}

TEST_F(PutBack, RemovalDeletesAllEqualLines) {
  UndoRig other("[boot]\r\n[386Enh]\r\n");
  other.TakeRecord();
  other.machine.WriteFile(kIniPath,
                          "[boot]\r\n[386Enh]\r\nPagingDrive=C:\r\nother=1\r\npagingdrive=D:\r\n"
                          "PAGINGDRIVE=E:\r\n");
  other.Start();
  ConfirmPutBack(other);
  EXPECT_EQ(other.Ini(), "[boot]\r\n[386Enh]\r\nother=1\r\n");
  EXPECT_EQ(other.Screen().PagingDrive.now.Caption(), "(none)");
}

TEST_F(PutBack, UncertainRemovalMustBeTickedByTheUser) {
  StartChanged();
  EXPECT_TRUE(rig.Screen().Paging.box.Enabled());
  EXPECT_FALSE(rig.Screen().Paging.box.Ticked());
  PressAndAnswer(os::kIdYes);
  EXPECT_NE(rig.Ini().find("Paging=on\r\n"), std::string::npos);
  rig.Screen().Paging.box.Press();
  PressAndAnswer(os::kIdYes);
  EXPECT_EQ(rig.Ini(), kIniPutBack);
}

TEST_F(PutBack, LongTextsAreCutInTheQuestion) {
  UndoRig other("[386Enh]\r\nPagingDrive=" + std::string(200, 'W') + "\r\n");
  other.TakeRecord();
  other.machine.WriteFile(kIniPath, "");
  other.Start();
  other.Screen().cmdPutBack.Press();
  EXPECT_TRUE(other.machine.Boxes()[0].text.find("PagingDrive: put back " + std::string(57, 'W') +
                                                 "...\r\n") != std::string::npos);
  ConfirmPutBack(other);
  EXPECT_EQ(other.Ini(), "[386Enh]\r\nPagingDrive=" + std::string(200, 'W') + "\r\n");
}

}  // namespace
}  // namespace qdix::tests
