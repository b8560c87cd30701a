// The backup and the record of the old settings are made first, and only once.
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

/// Returns the indexes of the recorded calls from `first_call` on that begin with this text.
std::vector<std::size_t> PlacesOf(const TuningRig& rig, const std::string& beginning,
                                  std::size_t first_call) {
  std::vector<std::size_t> places;
  for (std::size_t i = first_call; i < rig.machine.Calls().size(); ++i) {
    if (rig.machine.Calls()[i].starts_with(beginning)) places.push_back(i);
  }
  return places;
}

constexpr const char* kRecordCall = "RegSetValueExA(HKLM\\SOFTWARE\\QDIX: ";

TEST(RecordOrder, ComesBeforeTheSwapFileIsLeftToWindows) {
  TuningRig rig;
  rig.WriteSystemIni(
      "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=102400\r\nMaxPagingFileSize=102400\r\n");
  rig.StartAt(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap1.Press();
  rig.Answer({os::kIdYes, os::kIdNo});
  const std::size_t before = rig.machine.Calls().size();
  rig.program->SwapFileScreen().Command18.Press();
  const auto records = PlacesOf(rig, kRecordCall, before);
  const auto copies = PlacesOf(rig, "CopyFileA(", before);
  const auto questions = PlacesOf(rig, "MessageBoxA(", before);
  const auto writes = PlacesOf(rig, "WritePrivateProfileStringA(system.ini [386Enh]", before);
  ASSERT_FALSE(records.empty());
  ASSERT_EQ(questions.size(), 2U);
  ASSERT_EQ(writes.size(), 4U) << "the save removes three entries and writes one";
  EXPECT_LT(records.back(), questions.front());
  EXPECT_LT(questions.front(), writes.front());
  EXPECT_LT(writes.back(), questions.back());
  for (const std::size_t copy : copies) EXPECT_LT(copy, questions.front());
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "OldPagingDrive"), "C:");
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "OldMinPagingFileSize"),
            "102400");
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "OldMaxPagingFileSize"),
            "102400");
}

/// A backup or record made by a second save would contain the first save's settings.
TEST(RecordOrder, FailedBackupAndRecordAreNotRetriedByTheNextSave) {
  TuningRig rig;
  rig.WriteSystemIni("[vcache]\r\nMinFileCache=1024\r\n");
  rig.StartAt(screens::kCacheTab);
  rig.Answer({os::kIdYes, os::kIdNo, os::kIdYes, os::kIdNo, os::kIdYes, os::kIdNo});
  rig.machine.FailNextCall("CopyFileA");
  rig.program->CacheScreen().Command11.Press();
  ASSERT_EQ(rig.machine.ReadFile(kBackupPath), std::nullopt);
  const std::size_t before = rig.machine.Calls().size();
  rig.program->CacheScreen().Command11.Press();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kSwapFileTab);
  rig.program->SwapFileScreen().Command18.Press();
  EXPECT_EQ(rig.machine.Boxes().size(), 6U);
  EXPECT_TRUE(PlacesOf(rig, "CopyFileA(", before).empty());
  EXPECT_TRUE(PlacesOf(rig, kRecordCall, before).empty());
  EXPECT_EQ(rig.machine.ReadFile(kBackupPath), std::nullopt);
}

}  // namespace
}  // namespace qdix::tests
