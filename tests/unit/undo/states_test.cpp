// What the window says about record, backup and system.ini, and what it offers in each state.
#include <gtest/gtest.h>

#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kRecorded =
    "Q-DIX recorded these settings before it first changed this computer. Tick the ones that you want to put "
    "back.";
constexpr const char* kNoBackup = "There is no backup of system.ini (system.qdix in the Windows folder).";
constexpr const char* kDatedBackup =
    "Backup: system.qdix in the Windows folder (SYSTEM~1.QDI at the command prompt), system.ini as of "
    "Monday, May 3, "
    "1999.";
constexpr double kThirdOfMay1999 = 36283.4;

class UndoState : public testing::Test {
 protected:
  UndoState() {
    rig.machine.SetNow(kThirdOfMay1999);
    rig.machine.WriteFile(kIniPath, kIniBefore);
  }
  void Start() {
    rig.machine.SetNow(kThirdOfMay1999 + 400);
    rig.Change();
    rig.Start();
  }
  [[nodiscard]] std::string State() { return rig.Screen().lblState.Caption(); }
  [[nodiscard]] std::string Backup() { return rig.Screen().lblBackup.Caption(); }
  [[nodiscard]] int RowsToPutBack() {
    int rows = 0;
    for (const undo::EntryRow* const row : rig.Screen().Rows()) rows += row->box.Enabled() ? 1 : 0;
    return rows;
  }
  void RemoveRecordValues() {
    rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kRecordKey, "FirstSave", "1");
  }
  void ExpectDamaged(const std::string& bytes, const std::string& fault) {
    rig.machine.WriteFile(kBackupPath, bytes);
    Start();
    EXPECT_EQ(Backup(),
              "system.qdix in the Windows folder is damaged: it " + fault + ". It will not be used.");
    EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
    EXPECT_EQ(rig.Screen().MinPagingFileSize.before.Caption(), "not recorded");
    EXPECT_EQ(rig.Screen().Paging.before.Caption(), "not recorded");
    EXPECT_EQ(RowsToPutBack(), 5) << "only the recorded entries";
  }

  UndoRig rig;
};

TEST_F(UndoState, RecordAndBackup) {
  rig.TakeRecord();
  Start();
  EXPECT_EQ(State(), kRecorded);
  EXPECT_EQ(Backup(), kDatedBackup);
  EXPECT_TRUE(rig.Screen().cmdRestore.Enabled());
  EXPECT_EQ(RowsToPutBack(), 8);
}

TEST_F(UndoState, RecordWithoutBackup) {
  rig.TakeRecord();
  rig.machine.EraseFile(kBackupPath);
  Start();
  EXPECT_EQ(State(), kRecorded);
  EXPECT_EQ(Backup(), kNoBackup);
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
  EXPECT_EQ(RowsToPutBack(), 5);
}

TEST_F(UndoState, RecordWithoutValues) {
  RemoveRecordValues();
  rig.machine.WriteFile(kBackupPath, kIniBefore);
  Start();
  EXPECT_EQ(State(), "The record is empty. Settings can be put back only from the backup.");
  EXPECT_EQ(Backup(), kDatedBackup);
  EXPECT_EQ(rig.Screen().MinFileCache.before.Caption(), "not recorded; backup: 2048");
  EXPECT_TRUE(rig.Screen().MinFileCache.box.Ticked());
  EXPECT_TRUE(rig.Screen().MaxFileCache.box.Enabled());
  EXPECT_FALSE(rig.Screen().MaxFileCache.box.Ticked())
      << "the only evidence for its removal is that the backup lacks it";
}

TEST_F(UndoState, RecordWithoutValuesAndWithoutBackup) {
  RemoveRecordValues();
  Start();
  EXPECT_EQ(State(), "The record is empty, and there is no usable backup.");
  EXPECT_EQ(Backup(), kNoBackup);
  EXPECT_EQ(RowsToPutBack(), 0);
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
}

TEST_F(UndoState, BackupWithoutRecordOffersOnlyTheWholeFile) {
  rig.machine.WriteFile(kBackupPath, kIniBefore);
  Start();
  EXPECT_EQ(State(), "Nothing is recorded, so you can only restore the whole of system.ini.");
  EXPECT_EQ(Backup(), kDatedBackup);
  EXPECT_EQ(RowsToPutBack(), 0);
  EXPECT_TRUE(rig.Screen().cmdRestore.Enabled());
}

TEST_F(UndoState, NeitherRecordNorBackup) {
  Start();
  EXPECT_EQ(State(),
            "Nothing is recorded. Q-DIX records these settings before it first changes one, so there is "
            "nothing to put back.");
  EXPECT_EQ(Backup(), kNoBackup);
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
}

TEST_F(UndoState, BackupFromAnotherTimeIsNotUsedForSingleEntries) {
  rig.machine.WriteFile(kBackupPath, "[boot]\r\n[386Enh]\r\nPagingDrive=E:\r\nPaging=off\r\n");
  rig.machine.ProtectFile(kBackupPath);
  rig.TakeRecord();
  Start();
  EXPECT_EQ(Backup(), std::string(kDatedBackup) +
                          " It does not match the record, so no single setting is taken from it.");
  EXPECT_EQ(rig.Screen().PagingDrive.before.Caption(), "D:");
  EXPECT_EQ(rig.Screen().Paging.before.Caption(), "not recorded");
  EXPECT_EQ(RowsToPutBack(), 5);
  EXPECT_TRUE(rig.Screen().cmdRestore.Enabled());
  rig.Screen().cmdRestore.Press();
  EXPECT_NE(rig.machine.Boxes()[0].text.find("\r\n\r\nThis copy does not match the settings that Q-DIX "
                                             "recorded. Check its date.\r\n\r\nDo you want"),
            std::string::npos)
      << rig.machine.Boxes()[0].text;
}

TEST_F(UndoState, NoTextPresentsAnOldWriteProtectedCopyAsTheFirstBackup) {
  rig.machine.SetNow(kThirdOfMay1999 - 300);
  rig.machine.WriteFile(kBackupPath, kIniBefore);
  rig.machine.ProtectFile(kBackupPath);
  rig.TakeRecord();
  Start();
  EXPECT_EQ(Backup().find("first change"), std::string::npos) << Backup();
  EXPECT_NE(Backup().find("Tuesday, July 7, 1998"), std::string::npos) << Backup();
  rig.Screen().cmdRestore.Press();
  EXPECT_EQ(rig.machine.Boxes()[0].text.find("first change"), std::string::npos);
  EXPECT_NE(rig.machine.Boxes()[0].text.find("Tuesday, July 7, 1998"), std::string::npos);
}

TEST_F(UndoState, BackupWithoutBootIsDamaged) {
  rig.TakeRecord();
  ExpectDamaged("[386Enh]\r\nPagingDrive=D:\r\n", "has no [boot] section");
}

TEST_F(UndoState, BackupWithout386EnhIsDamaged) {
  rig.TakeRecord();
  ExpectDamaged("[boot]\r\nshell=Explorer.exe\r\n", "has no [386Enh] section");
}

TEST_F(UndoState, BackupTruncatedByAFullDiskIsDamaged) {
  rig.machine.LimitFreeBytes(std::string(kIniBefore).size() - 4);
  rig.TakeRecord();
  rig.machine.LimitFreeBytes(1000000);
  const std::string cut = rig.machine.ReadFile(kBackupPath).value_or("none");
  EXPECT_EQ(cut.size(), std::string(kIniBefore).size() - 4);
  ExpectDamaged(cut, "ends in the middle of a line");
}

TEST_F(UndoState, UnreadableBackupOffersNothing) {
  rig.TakeRecord();
  rig.machine.LockFile(kBackupPath);
  Start();
  EXPECT_EQ(
      Backup(),
      "system.qdix in the Windows folder cannot be read. Close other programs and start Q-DIX Undo again.");
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
  EXPECT_EQ(rig.Screen().Paging.before.Caption(), "not recorded");
  EXPECT_EQ(RowsToPutBack(), 5);
}

TEST_F(UndoState, UnreadableDateAndNameAreLeftOut) {
  rig.TakeRecord();
  rig.machine.FailNextCall("FindFirstFileA");
  Start();
  EXPECT_EQ(Backup(), "Backup: system.qdix in the Windows folder.");
}

TEST_F(UndoState, MissingSystemIniCausesAWarning) {
  rig.TakeRecord();
  rig.machine.EraseFile(kIniPath);
  rig.SetTemplate("Quondix");
  rig.Start();
  EXPECT_EQ(State(),
            "Warning: system.ini is missing. Windows cannot start without it. Restore the whole file before "
            "you restart.");
  EXPECT_EQ(RowsToPutBack(), 1) << "only the template; an entry would create a system.ini with nothing else";
  EXPECT_TRUE(rig.Screen().Template.box.Ticked());
  rig.machine.EraseFile(kBackupPath);
  rig.Start();
  EXPECT_EQ(State(),
            "Warning: system.ini is missing. Windows cannot start without it. Put a complete system.ini in "
            "the Windows folder before you restart.");
}

TEST_F(UndoState, SystemIniWithoutBootCausesAWarning) {
  rig.TakeRecord();
  rig.machine.WriteFile(kIniPath, "[386Enh]\r\nPagingDrive=C:\r\n");
  rig.Start();
  EXPECT_EQ(State(),
            "Warning: system.ini has no [boot] section. Windows cannot start without it. Restore the whole "
            "file before you restart.");
  rig.machine.EraseFile(kBackupPath);
  rig.Start();
  EXPECT_EQ(State(),
            "Warning: system.ini has no [boot] section. Windows cannot start without it. Put a complete "
            "system.ini in the Windows folder before you restart.");
}

}  // namespace
}  // namespace qdix::tests
