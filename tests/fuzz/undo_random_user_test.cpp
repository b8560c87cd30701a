// Uses the program that undoes settings at random, on machines whose record, file and disk are in any state.
// It never touches the record and the backup, loses nothing that other programs keep in system.ini, and
// leaves nothing open. A failing run prints its seed.
#include <gtest/gtest.h>

#include <array>

#include "tests/fuzz/random_user.h"
#include "tests/unit/undo/undo_rig.h"

namespace qdix::tests {
namespace {

constexpr unsigned long kEvents = 12000;
constexpr std::array<const char*, 9> kFailingCalls{"WritePrivateProfileStringA",
                                                   "GetPrivateProfileStringA",
                                                   "RegSetValueExA",
                                                   "RegOpenKeyExA",
                                                   "CreateFileA",
                                                   "WriteFile",
                                                   "MoveFileA",
                                                   "FindFirstFileA",
                                                   "ExitWindowsEx"};

class RandomUndoUser : private RandomSource {
 public:
  using RandomSource::RandomSource;

  unsigned long Run() {
    FillMachine();
    rig_.machine.WhileBoxIsOpen([this] { actions_.Answer(rig_.machine); });
    Start();
    for (unsigned long events = 0; events < kEventsPerRun; ++events) {
      Act();
      CheckInvariants();
      if (rig_.form->Form().Unloaded()) Start();
    }
    return kEventsPerRun;
  }

 private:
  void FillMachine() {
    if (!Chance(8)) rig_.TakeRecord();
    if (!Chance(4)) rig_.Change();
    for (const char* name : {"MinFileCache", "PagingDrive", "PathCache"}) {
      if (Chance(4)) rig_.SetRecord(name, actions_.SomeText());
    }
    if (Chance(8)) rig_.machine.ProtectFile(kIniPath);
  }

  void Start() {
    rig_.machine.EndProcess();
    rig_.Start();
    actions_.Collect(rig_.form->Form());
  }

  void Act() {
    if (Chance(10)) rig_.machine.FailNextCall(kFailingCalls[Random() % kFailingCalls.size()]);
    if (Chance(20)) rig_.machine.LimitFreeBytes(Random() % 100);
    if (Chance(20)) rig_.machine.LimitFreeBytes(1000000);
    if (Chance(20)) rig_.machine.LockFile(Chance(2) ? kIniPath : kBackupPath);
    if (Chance(10)) {
      rig_.machine.UnlockFile(kIniPath);
      rig_.machine.UnlockFile(kBackupPath);
    }
    // Another program changes a setting that this one restores.
    if (Chance(15)) rig_.SetTemplate(Chance(2) ? "Quondix" : "Desktop");
    if (Chance(60)) rig_.form->EndSession();
    if (Chance(60)) rig_.form->Form().Close();
    actions_.UseAny();
  }

  void CheckInvariants() {
    EXPECT_TRUE(rig_.RecordIsUntouched());
    EXPECT_NE(rig_.Ini().find("[boot]\r\nshell=Explorer.exe\r\n"), std::string::npos) << rig_.Ini();
    EXPECT_EQ(rig_.machine.OpenKeyCount(), 0);
    EXPECT_EQ(rig_.machine.OpenFileCount(), 0);
    EXPECT_TRUE(rig_.machine.Misuses().empty());
    bool some_are_ticked = false;
    for (EntryRow* const row : rig_.Screen().Rows()) {
      EXPECT_TRUE(row->box.Enabled() || !row->box.Ticked()) << row->box.Name();
      some_are_ticked = some_are_ticked || row->box.Ticked();
    }
    if (!rig_.form->Form().Unloaded()) {
      EXPECT_EQ(rig_.Screen().cmdPutBack.Enabled(), some_are_ticked);
    }
    rig_.machine.ClearRecords();
  }

  using EntryRow = undo::EntryRow;

  UndoRig rig_;
  RandomActions actions_{*this};
};

TEST(RandomUndoUser, LosesNothingAndTouchesNoRecord) { RunRandomUser<RandomUndoUser>(kEvents); }

}  // namespace
}  // namespace qdix::tests
