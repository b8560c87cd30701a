// Runs whole sessions for every system call that can fail: with that call failing once, and with all calls
// failing from then on. Disks fill up or are write-protected. At every end either the previous list or the
// new one is complete.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/unit/config_launcher/config_rig.h"

namespace qdix::tests {
namespace {

/// What the disk held before.
enum class Before : std::uint8_t {
  kNothing,
  kList,
  /// A save was interrupted between its two renames.
  kBackupOnly,
  kBackupAndEmptyList,
  /// A save was interrupted before it deleted the copy.
  kListAndOldBackup,
};
constexpr std::array<Before, 5> kAllBefore{Before::kNothing, Before::kList, Before::kBackupOnly,
                                           Before::kBackupAndEmptyList, Before::kListAndOldBackup};

const launcher::LauncherEntry kNew{"New", "NEW.EXE", ""};

Entries OldList(Before before) { return SomeEntries(before == Before::kNothing ? 0 : 3); }

Entries NewList(Before before) {
  Entries entries = OldList(before);
  entries.push_back(kNew);
  return entries;
}

void Prepare(ConfigRig& rig, Before before) {
  const std::string bytes = BytesOf(OldList(before));
  const bool has_list = before == Before::kList || before == Before::kListAndOldBackup;
  const bool has_backup = before == Before::kBackupOnly || before == Before::kBackupAndEmptyList;
  if (has_list) rig.machine.WriteFile(kListPath, bytes);
  if (before == Before::kBackupAndEmptyList) rig.machine.WriteFile(kListPath, "");
  if (has_backup) rig.machine.WriteFile(kListBackupPath, bytes);
  if (before == Before::kListAndOldBackup) rig.machine.WriteFile(kListBackupPath, BytesOf(SomeEntries(1)));
}

void RunSession(ConfigRig& rig) {
  rig.Start();
  if (rig.form->Form().Unloaded()) return;
  rig.Type(kNew);
  rig.Screen().cmdAdd.Press();
  rig.Screen().cmdOK.Press();
}

int CallsOfASession(Before before) {
  ConfigRig rig;
  Prepare(rig, before);
  RunSession(rig);
  return rig.machine.FaultableCallCount();
}

bool IsKnown(const std::string& message) {
  constexpr std::array<const char*, 3> kBeginnings{
      "The list of programs could not be saved.\r\n\r\n", "The list of programs could not be read",
      "There are problems with the list of programs (launcher.dat):"};
  return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [&message](const char* beginning) { return message.starts_with(beginning); });
}

/// Returns the list that the next start of the program shows.
Entries ListOfNextStart(ConfigRig& rig) {
  rig.machine.FailCallNumber(0);
  rig.machine.FailFromCallNumber(0);
  rig.Restart();
  EXPECT_FALSE(rig.form->Form().Unloaded());
  return rig.form->Entries();
}

void ExpectSound(ConfigRig& rig, Before before, int call) {
  const std::string trace = std::to_string(static_cast<int>(before)) + ", call " + std::to_string(call);
  EXPECT_EQ(rig.machine.Misuses(), std::vector<std::string>{}) << trace;
  EXPECT_EQ(rig.machine.OpenFileCount(), 0) << trace;
  for (const auto& box : rig.machine.Boxes()) EXPECT_TRUE(IsKnown(box.text)) << trace << ": " << box.text;
  const bool was_saved = rig.ListOnDisk() == BytesOf(NewList(before));
  // A window that stays open shows everything. A closed one has saved, or could read nothing.
  if (!rig.form->Form().Unloaded()) {
    EXPECT_EQ(rig.form->Entries().back(), kNew) << trace;
  }
  const Entries next = ListOfNextStart(rig);
  EXPECT_EQ(next, was_saved ? NewList(before) : OldList(before)) << trace;
}

TEST(ConfigFaults, SessionsWithoutAFaultSave) {
  for (const Before before : kAllBefore) {
    ConfigRig rig;
    Prepare(rig, before);
    RunSession(rig);
    EXPECT_EQ(rig.ListOnDisk(), BytesOf(NewList(before)));
    EXPECT_EQ(rig.machine.ReadFile(kListBackupPath), std::nullopt);
    EXPECT_EQ(rig.machine.ReadFile(kListTemporaryPath), std::nullopt);
    EXPECT_TRUE(rig.form->Form().Unloaded());
  }
}

TEST(ConfigFaults, EachCallFailedOnceLosesNothing) {
  for (const Before before : kAllBefore) {
    const int calls = CallsOfASession(before);
    ASSERT_GT(calls, 10);
    for (int call = 1; call <= calls; ++call) {
      ConfigRig rig;
      Prepare(rig, before);
      rig.machine.FailCallNumber(call);
      RunSession(rig);
      ExpectSound(rig, before, call);
    }
  }
}

TEST(ConfigFaults, AllCallsFailedFromEachOnLoseNothing) {
  for (const Before before : kAllBefore) {
    const int calls = CallsOfASession(before);
    for (int call = 1; call <= calls; ++call) {
      ConfigRig rig;
      Prepare(rig, before);
      rig.machine.FailFromCallNumber(call);
      RunSession(rig);
      ExpectSound(rig, before, call);
    }
  }
}

TEST(ConfigFaults, FullDiskKeepsTheOldListAndTheWindow) {
  for (const std::uint64_t bytes : {0U, 1U, 564U, 2259U}) {
    ConfigRig rig(SomeEntries(3));
    rig.machine.LimitFreeBytes(bytes);
    RunSession(rig);
    EXPECT_EQ(rig.BoxText(1), kCouldNotBeSaved);
    EXPECT_FALSE(rig.form->Form().Unloaded());
    EXPECT_EQ(rig.form->Entries().size(), 4U);
    EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(3)));
    EXPECT_EQ(rig.machine.ReadFile(kListTemporaryPath), std::nullopt);
    rig.machine.LimitFreeBytes(100000);
    rig.Screen().cmdOK.Press();
    EXPECT_TRUE(rig.form->Form().Unloaded());
    EXPECT_EQ(rig.ListOnDisk(), BytesOf(NewList(Before::kList)));
  }
}

TEST(ConfigFaults, ProtectedListAndProtectedDiskAreLeftAlone) {
  for (const bool whole_disk : {false, true}) {
    ConfigRig rig(SomeEntries(3));
    if (whole_disk) {
      rig.machine.ProtectDisk();
    } else {
      rig.machine.ProtectFile(kListPath);
    }
    RunSession(rig);
    EXPECT_EQ(rig.BoxText(1), kCouldNotBeSaved);
    EXPECT_FALSE(rig.form->Form().Unloaded());
    EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(3)));
  }
}

/// The second rename fails, and so does its rollback.
TEST(ConfigFaults, ListThatCouldNotBeRenamedBackIsFoundAgain) {
  int renamed = 0;
  for (int call = 1; call <= CallsOfASession(Before::kList); ++call) {
    ConfigRig rig(SomeEntries(3));
    config_launcher::ListFile file(rig.machine.GetSystem());
    rig.machine.FailFromCallNumber(call);
    if (file.Write(SomeEntries(4)) != config_launcher::Saved::kNoAndRenamed) continue;
    ++renamed;
    EXPECT_EQ(rig.ListOnDisk(), std::nullopt);
    EXPECT_EQ(rig.machine.ReadFile(kListBackupPath), BytesOf(SomeEntries(3)));
    rig.machine.FailFromCallNumber(0);
    EXPECT_EQ(rig.Start().Entries(), SomeEntries(3));
    EXPECT_EQ(rig.BoxText(1), OpeningMessage(kReadFromBackup));
  }
  EXPECT_EQ(renamed, 1);
}

/// The box fails too, but the machine records its text.
TEST(ConfigFaults, MessageNamesTheFileIfTheListCouldNotBeRenamedBack) {
  const std::string message =
      "MessageBoxA(The list of programs could not be saved.\r\n\r\nYour previous list is in launcher.bak. "
      "Please make sure that the disk is neither full nor write-protected and that no other program has "
      "launcher.dat open, and try again.)";
  int renamed = 0;
  for (int call = 1; call <= CallsOfASession(Before::kList); ++call) {
    ConfigRig rig(SomeEntries(3));
    rig.machine.FailFromCallNumber(call);
    RunSession(rig);
    if (rig.ListOnDisk().has_value()) continue;
    ++renamed;
    EXPECT_EQ(rig.machine.Calls().back(), message);
    EXPECT_EQ(rig.machine.ReadFile(kListBackupPath), BytesOf(SomeEntries(3)));
  }
  EXPECT_EQ(renamed, 1);
}

/// It could be the only complete one, with an older copy beside it.
TEST(ConfigFaults, ListThatCannotBeExaminedIsNotTouched) {
  ConfigRig rig;
  Prepare(rig, Before::kListAndOldBackup);
  config_launcher::ListFile file(rig.machine.GetSystem());
  rig.machine.FailNextCall("ReadFile");
  EXPECT_EQ(file.Write(SomeEntries(5)), config_launcher::Saved::kNo);
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(3)));
  EXPECT_EQ(rig.machine.ReadFile(kListBackupPath), BytesOf(SomeEntries(1)));
  EXPECT_EQ(rig.machine.ReadFile(kListTemporaryPath), std::nullopt);
}

TEST(ConfigFaults, MoreEntriesThanTheLauncherAcceptsAreNeverWritten) {
  ConfigRig rig(SomeEntries(3));
  config_launcher::ListFile file(rig.machine.GetSystem());
  EXPECT_EQ(file.Write(SomeEntries(26)), config_launcher::Saved::kNo);
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(3)));
  EXPECT_EQ(file.Write(SomeEntries(25)), config_launcher::Saved::kYes);
  EXPECT_EQ(rig.ListOnDisk(), BytesOf(SomeEntries(25)));
}

}  // namespace
}  // namespace qdix::tests
