// What the window shows of record, backup and system, and what can be chosen.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> StateBefore(undo::UndoScreen& screen) {
  std::vector<std::string> texts;
  for (const undo::EntryRow* const row : screen.Rows()) texts.push_back(row->before.Caption());
  return texts;
}

std::vector<std::string> NowOf(undo::UndoScreen& screen) {
  std::vector<std::string> texts;
  for (const undo::EntryRow* const row : screen.Rows()) texts.push_back(row->now.Caption());
  return texts;
}

/// Returns "x" for ticked, "o" for clear, "-" for disabled.
std::string BoxesOf(undo::UndoScreen& screen) {
  std::string boxes;
  for (const undo::EntryRow* const row : screen.Rows()) {
    boxes += row->box.Enabled() ? (row->box.Ticked() ? 'x' : 'o') : '-';
    EXPECT_TRUE(row->box.Enabled() || !row->box.Ticked());
  }
  return boxes;
}

TEST(UndoRows, ShowOldBesideCurrentValues) {
  UndoRig rig;
  rig.TakeRecordAndChange();
  rig.Start();
  EXPECT_THAT(StateBefore(rig.Screen()),
              ElementsAre("2048", "(none)", "(none)", "Desktop", "D:", "not recorded; backup: 0", "(none)",
                          "not recorded; backup: (none)"));
  EXPECT_THAT(NowOf(rig.Screen()),
              ElementsAre("4096", "8192", "512", "Quondix", "C:", "65536", "65536", "on"));
  EXPECT_EQ(BoxesOf(rig.Screen()), "xxxxxxxo")
      << "the only evidence for the last entry is that the backup lacks it";
  EXPECT_TRUE(rig.Screen().cmdPutBack.Enabled());
  EXPECT_TRUE(rig.Screen().cmdRestore.Enabled());
  EXPECT_EQ(
      rig.Screen().lblState.Caption(),
      "Q-DIX recorded these settings before it first changed this computer. Tick the ones that you want "
      "to put back.");
  EXPECT_TRUE(rig.Screen().lblBackup.Caption().starts_with("Backup: system.qdix"));
  EXPECT_TRUE(rig.form->Form().Shown());
  EXPECT_THAT(rig.Changes(rig.machine.Calls().size()), IsEmpty());
}

TEST(UndoRows, StartWritesNothing) {
  UndoRig rig;
  rig.TakeRecordAndChange();
  const std::size_t before = rig.machine.Calls().size();
  rig.Start();
  EXPECT_THAT(rig.Changes(before), IsEmpty());
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_TRUE(rig.RecordIsUntouched());
}

TEST(UndoRows, UnchangedEntriesCannotBeChosen) {
  UndoRig rig;
  rig.TakeRecord();
  rig.Start();
  EXPECT_EQ(BoxesOf(rig.Screen()), "--------");
  EXPECT_FALSE(rig.Screen().cmdPutBack.Enabled());
  EXPECT_TRUE(rig.Screen().cmdRestore.Enabled()) << "it may undo other changes";
}

TEST(UndoRows, OneDifferenceMakesOneTick) {
  UndoRig rig;
  rig.TakeRecord();
  rig.SetTemplate("Server");
  rig.Start();
  EXPECT_EQ(BoxesOf(rig.Screen()), "---x----");
  EXPECT_TRUE(rig.Screen().cmdPutBack.Enabled());
}

TEST(UndoRows, NothingRecordedLeavesOnlyClose) {
  for (const bool is_marker_empty : {false, true}) {
    UndoRig rig;
    if (is_marker_empty) rig.SetRecord("FirstSave", "");
    rig.SetRecord("OldMinCache", "2048");
    rig.Change();
    rig.Start();
    EXPECT_EQ(rig.Screen().lblState.Caption(),
              "Nothing is recorded. Q-DIX records these settings before it first changes one, so there is "
              "nothing to put back.");
    EXPECT_EQ(BoxesOf(rig.Screen()), "--------");
    for (const std::string& text : StateBefore(rig.Screen())) EXPECT_EQ(text, "not recorded");
    EXPECT_FALSE(rig.Screen().cmdPutBack.Enabled());
    EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
    EXPECT_TRUE(rig.Screen().cmdClose.Reachable());
    rig.Screen().cmdClose.Press();
    EXPECT_TRUE(rig.form->Form().Unloaded());
  }
}

TEST(UndoRows, UnrecordedEntriesAreNotOfferedWithoutABackup) {
  UndoRig rig("[386Enh]\r\nPagingDrive=C:\r\n[vcache]\r\nChunkSize=512\r\n");
  rig.machine.FailNextCall("CopyFileA");
  rig.TakeRecordAndChange();
  rig.Start();
  EXPECT_EQ(rig.backup, std::nullopt);
  EXPECT_EQ(BoxesOf(rig.Screen()), "xx-x----");
  EXPECT_THAT(StateBefore(rig.Screen()), ElementsAre("(none)", "(none)", "512", "Desktop",
                                                     "C:", "not recorded", "not recorded", "not recorded"));
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
  EXPECT_EQ(rig.Screen().lblBackup.Caption(),
            "There is no backup of system.ini (system.qdix in the Windows folder).");
}

TEST(UndoRows, FolderWithTheNameOfTheBackupIsNoBackup) {
  UndoRig rig;
  rig.TakeRecord();
  rig.machine.SetWindowsDirectory("C:\\WINDOWS\\system.qdix");
  rig.Start();
  EXPECT_FALSE(rig.Screen().cmdRestore.Enabled());
}

TEST(UndoRows, SizeMissingInTheRecordComesFromTheBackup) {
  UndoRig rig("[vcache]\r\nMinFileCache=2048 KB\r\n");
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kRecordKey, "FirstSave", "1");
  rig.machine.WriteFile(kBackupPath, kIniBefore);
  rig.Start();
  EXPECT_EQ(rig.Screen().MinFileCache.before.Caption(), "not recorded; backup: 2048");
  EXPECT_EQ(rig.Screen().Template.before.Caption(), "not recorded");
  EXPECT_EQ(BoxesOf(rig.Screen()), "x---xx--");
}

TEST(UndoRows, GarbageInTheRecordIsShownButNotOffered) {
  UndoRig rig;
  rig.TakeRecordAndChange();
  rig.SetRecord("OldMinCache", "a lot");
  rig.SetRecord("OldMaxCache", std::string(60000, '9'));
  rig.SetRecord("OldPagingDrive", "C:\r\nshell=virus.exe");
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kRecordKey, "OldChunk", os::kRegDword,
                               std::string("\0\2\0\0", 4));
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kRecordKey, "OldFileCache", os::kRegBinary, "ab");
  rig.Start();
  EXPECT_EQ(BoxesOf(rig.Screen()), "--o--xoo");
  EXPECT_EQ(rig.Screen().MinFileCache.before.Caption(), "a lot");
  EXPECT_EQ(rig.Screen().MaxFileCache.before.Caption(), std::string(21, '9') + "...");
  EXPECT_EQ(rig.Screen().ChunkSize.before.Caption(), "not recorded; backup: (none)");
  EXPECT_EQ(rig.Screen().Template.before.Caption(), "not recorded");
  EXPECT_EQ(rig.Screen().PagingDrive.before.Caption(), "C:  shell=virus.exe");
}

TEST(UndoRows, LongTextsAreCutInEveryColumn) {
  UndoRig rig("[boot]\r\n[386Enh]\r\nPagingDrive=" + std::string(200, 'W') +
              "\r\nPaging=" + std::string(20, 'p') + "\r\n");
  rig.TakeRecord();
  rig.machine.WriteFile(kIniPath, "[386Enh]\r\nPagingDrive=" + std::string(5000, 'V') + "\r\n");
  rig.Start();
  EXPECT_EQ(rig.Screen().PagingDrive.before.Caption(), std::string(21, 'W') + "...");
  EXPECT_EQ(rig.Screen().PagingDrive.now.Caption(), std::string(8, 'V') + "...");
  EXPECT_EQ(rig.Screen().Paging.before.Caption(), "not recorded; backup: ppppp...");
}

TEST(UndoRows, BackupEntryThatCannotBeReadCompletelyIsNotOffered) {
  UndoRig rig("[boot]\r\n[386Enh]\r\nPaging=" + std::string(255, 'p') + "\r\n");
  rig.TakeRecordAndChange();
  rig.Start();
  EXPECT_EQ(rig.Screen().Paging.before.Caption(), std::string(21, 'p') + "...");
  EXPECT_FALSE(rig.Screen().Paging.box.Enabled());
}

TEST(UndoRows, ButtonFollowsTheBoxes) {
  UndoRig rig;
  rig.TakeRecord();
  rig.machine.WriteFile(kIniPath, "[vcache]\r\nMinFileCache=1\r\n[386Enh]\r\nMinPagingFileSize=0\r\n");
  rig.Start();
  EXPECT_EQ(BoxesOf(rig.Screen()), "x---x---");
  rig.Screen().MinFileCache.box.Press();
  EXPECT_TRUE(rig.Screen().cmdPutBack.Enabled());
  rig.Screen().PagingDrive.box.Press();
  EXPECT_FALSE(rig.Screen().cmdPutBack.Enabled());
  rig.Screen().PagingDrive.box.Press();
  EXPECT_TRUE(rig.Screen().cmdPutBack.Enabled());
}

TEST(UndoRows, UntrappedErrorIsShownAndEndsTheProgram) {
  UndoRig rig;
  rig.Start();
  rig.machine.WhileBoxIsOpen(
      [&rig] { EXPECT_FALSE(rig.form->Form().Unloaded()) << "it unloads only after the box was read"; });
  rig.form->Form().Dispatcher().Report(base::kOverflow);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX Undo");
  EXPECT_TRUE(rig.machine.Boxes()[0].text.starts_with("Run-time error '6':"));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk | os::kMbIconStop);
  EXPECT_TRUE(rig.form->Form().Unloaded());
}

}  // namespace
}  // namespace qdix::tests
