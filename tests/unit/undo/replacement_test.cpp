// Replaces system.ini with a new file: whichever call fails, and whenever the power fails, a complete file is
// on the disk.
#include "undo/replacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::undo {
namespace {

using Outcome = Replacement::Outcome;

constexpr const char* kIni = "C:\\WINDOWS\\system.ini";
constexpr const char* kKept = "C:\\WINDOWS\\SYSTEM.Q01";
constexpr const char* kNewFile = "C:\\WINDOWS\\SYSTEM.Q00";
constexpr const char* kOld = "[boot]\r\nshell=Explorer.exe\r\nsound=new.drv\r\n[386Enh]\r\n";
constexpr const char* kNew = "[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\nPagingDrive=D:\r\n";

class SystemIniReplacement : public testing::Test {
 protected:
  SystemIniReplacement() { machine.WriteFile(kIni, kOld); }

  static Replacement Replace(os::SimulatedMachine& machine) {
    return ReplaceSystemIni(machine.GetSystem().files, "C:\\WINDOWS\\", kNew);
  }
  static std::string Content(const os::SimulatedMachine& machine, const char* path) {
    return machine.ReadFile(path).value_or("none");
  }
  static int WritesOfAReplacement() {
    os::SimulatedMachine machine;
    machine.WriteFile(kIni, kOld);
    EXPECT_EQ(Replace(machine).outcome, Outcome::kDone);
    return machine.DiskWriteCount();
  }
  static int CallsOfAReplacement() {
    os::SimulatedMachine machine;
    machine.WriteFile(kIni, kOld);
    EXPECT_EQ(Replace(machine).outcome, Outcome::kDone);
    return machine.FaultableCallCount();
  }

  os::SimulatedMachine machine;
};

TEST_F(SystemIniReplacement, OldFileKeepsItsBytesUnderAnotherName) {
  const Replacement replacement = Replace(machine);
  EXPECT_EQ(replacement.outcome, Outcome::kDone);
  EXPECT_EQ(replacement.kept_name, "SYSTEM.Q01");
  EXPECT_EQ(Content(machine, kIni), kNew);
  EXPECT_EQ(Content(machine, kKept), kOld);
  EXPECT_EQ(machine.ReadFile(kNewFile), std::nullopt);
  EXPECT_EQ(machine.OpenFileCount(), 0);
}

TEST_F(SystemIniReplacement, EarlierKeptFilesStay) {
  machine.WriteFile(kKept, "earlier");
  EXPECT_EQ(Replace(machine).kept_name, "SYSTEM.Q02");
  EXPECT_EQ(Content(machine, kKept), "earlier");
  EXPECT_EQ(Content(machine, "C:\\WINDOWS\\SYSTEM.Q02"), kOld);
}

TEST_F(SystemIniReplacement, NinetyNineFilesAreKeptAndNoneIsOverwritten) {
  for (int number = 1; number <= 99; ++number) {
    machine.WriteFile(kIni, kOld);
    const std::string name = std::string("SYSTEM.Q") + (number < 10 ? "0" : "") + std::to_string(number);
    ASSERT_EQ(Replace(machine).kept_name, name);
  }
  machine.WriteFile(kIni, "the hundredth");
  EXPECT_EQ(Replace(machine).outcome, Outcome::kRefused);
  EXPECT_EQ(Content(machine, kIni), "the hundredth");
  EXPECT_EQ(machine.ReadFile(kNewFile), std::nullopt);
}

TEST_F(SystemIniReplacement, MissingFileIsCreated) {
  machine.EraseFile(kIni);
  const Replacement replacement = Replace(machine);
  EXPECT_EQ(replacement.outcome, Outcome::kDone);
  EXPECT_EQ(replacement.kept_name, "");
  EXPECT_EQ(Content(machine, kIni), kNew);
}

TEST_F(SystemIniReplacement, PartialFileOfAnInterruptedAttemptIsOverwritten) {
  machine.WriteFile(kNewFile, "[bo");
  EXPECT_EQ(Replace(machine).outcome, Outcome::kDone);
  EXPECT_EQ(Content(machine, kIni), kNew);
}

TEST_F(SystemIniReplacement, WriteProtectedFileIsLeftAlone) {
  machine.ProtectFile(kIni);
  EXPECT_EQ(Replace(machine).outcome, Outcome::kRefused);
  EXPECT_EQ(Content(machine, kIni), kOld);
  EXPECT_EQ(machine.DiskWriteCount(), 0);
}

TEST_F(SystemIniReplacement, FullDiskLeavesTheOldFileAndNothingElse) {
  const std::string content = kNew;
  for (std::size_t free_bytes = 0; free_bytes < content.size(); ++free_bytes) {
    os::SimulatedMachine full;
    full.WriteFile(kIni, kOld);
    full.LimitFreeBytes(free_bytes);
    EXPECT_EQ(Replace(full).outcome, Outcome::kRefused) << free_bytes;
    EXPECT_EQ(Content(full, kIni), kOld) << free_bytes;
    EXPECT_EQ(full.ReadFile(kKept), std::nullopt) << free_bytes;
    EXPECT_EQ(full.ReadFile(kNewFile), std::nullopt) << free_bytes;
  }
}

/// Between the two renames no file has the name system.ini; then both files are there and complete.
TEST_F(SystemIniReplacement, PowerCutDuringAnyWriteLeavesACompleteFile) {
  const int writes = WritesOfAReplacement();
  ASSERT_EQ(writes, 4) << "the new file is created and filled, then two files are renamed";
  for (int write = 1; write <= writes; ++write) {
    os::SimulatedMachine cut;
    cut.WriteFile(kIni, kOld);
    cut.CutPowerInDiskWrite(write);
    static_cast<void>(Replace(cut));
    if (cut.ReadFile(kIni).has_value()) {
      EXPECT_EQ(Content(cut, kIni), kOld) << write;
    } else {
      EXPECT_EQ(write, writes) << "the name is free only between the two renames";
      EXPECT_EQ(Content(cut, kKept), kOld) << write;
      EXPECT_EQ(Content(cut, kNewFile), kNew) << write;
    }
  }
}

TEST_F(SystemIniReplacement, AnyFailedCallLeavesACompleteFileInPlace) {
  const int calls = CallsOfAReplacement();
  for (int call = 1; call <= calls; ++call) {
    os::SimulatedMachine failing;
    failing.WriteFile(kIni, kOld);
    failing.FailCallNumber(call);
    const Outcome outcome = Replace(failing).outcome;
    const bool is_done = outcome == Outcome::kDone;
    EXPECT_TRUE(is_done || outcome == Outcome::kRefused) << "system.ini has its name, call " << call;
    EXPECT_EQ(Content(failing, kIni), is_done ? kNew : kOld) << call;
    EXPECT_EQ(failing.OpenFileCount(), 0) << call;
  }
}

TEST_F(SystemIniReplacement, OldFileThatLostItsNameIsReported) {
  const int calls = CallsOfAReplacement();
  bool is_seen = false;
  for (int call = 1; call <= calls; ++call) {
    os::SimulatedMachine failing;
    failing.WriteFile(kIni, kOld);
    failing.FailFromCallNumber(call);
    const Replacement replacement = Replace(failing);
    if (replacement.outcome != Outcome::kRenamed) {
      EXPECT_EQ(Content(failing, kIni), kOld) << call;
      continue;
    }
    is_seen = true;
    EXPECT_EQ(replacement.kept_name, "SYSTEM.Q01");
    EXPECT_EQ(Content(failing, kKept), kOld);
    EXPECT_EQ(Content(failing, kNewFile), kNew);
  }
  EXPECT_TRUE(is_seen);
}

/// If the disk accepts bytes without an error but returns different ones, they never become system.ini.
TEST_F(SystemIniReplacement, NewFileIsVerifiedBeforeTheRenames) {
  machine.FailNextCall("ReadFile");
  EXPECT_EQ(Replace(machine).outcome, Outcome::kRefused);
  EXPECT_EQ(Content(machine, kIni), kOld);
  EXPECT_EQ(machine.ReadFile(kNewFile), std::nullopt);
}

}  // namespace
}  // namespace qdix::undo
