// "Save Changes", the suggestion and the defragmenter of the "Optimize Swapfile" tab: questions, messages and
// what is written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* kOptimised =
    "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n";
constexpr const char* kQuestion = "Are you sure you want to configure your Virtual Memory Settings?";
constexpr const char* kRestart =
    "You must restart your computer before the new settings take effect.\r\n\r\n"
    "Do you want to restart your computer now?";
constexpr const char* kDefaultQuestion =
    "Are you sure you want to set the virtual memory (swapfile) settings to Window's default settings?";
constexpr const char* kDefaultRestart =
    "Quondix has reset your virtual memory settings to the system's defaults.\r\n"
    "These settings will not take place until you reboot your system. You should save any work before "
    "re-starting Windows.  Do you want to restart Windows now?";

std::string Ini(const std::string& entry) {
  return "WritePrivateProfileStringA(system.ini [386Enh] " + entry + ")";
}

class SwapSaving : public testing::Test {
 protected:
  explicit SwapSaving(double ram_mb = 64) : rig(ram_mb) {}

  screens::SwapFileScreen& Tab() { return rig.program->SwapFileScreen(); }
  /// Starts on a machine that already has the record.
  void StartWithRecord(const std::string& ini) {
    rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kMachineKeyPath, "FirstSave", "1");
    Start(ini);
  }
  void Start(const std::string& ini) {
    rig.WriteSystemIni(ini);
    rig.StartAt(screens::kSwapFileTab);
    calls_before_ = rig.machine.Calls().size();
  }
  void Save(const std::vector<int>& answers = {}) {
    rig.Answer(answers);
    Tab().Command18.Press();
  }
  void SetSize(const std::string& text) {
    Tab().Text8.SetFocus();
    Tab().Text8.SelectAll();
    Tab().Text8.TypeText(text);
  }
  void SetFree(double mb) {
    rig.machine.AddDrive('C', {.total_bytes = FreeBytes(9000), .free_bytes = FreeBytes(mb)});
  }
  [[nodiscard]] std::vector<std::string> Changes() const { return rig.Changes(calls_before_); }
  [[nodiscard]] std::string Box(std::size_t index) const {
    return index < rig.machine.Boxes().size() ? rig.machine.Boxes()[index].text : "no box";
  }

  TuningRig rig;

 private:
  std::size_t calls_before_ = 0;
};

TEST_F(SwapSaving, OwnSetupIsWrittenInOrder) {
  StartWithRecord("[386Enh]\r\nPaging=on\r\nEMMExclude=A000\r\n");
  Tab().optSwap2.Press();
  SetSize("200");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion, kRestart));
  EXPECT_THAT(Changes(), ElementsAre(Ini("PagingDrive C:"), Ini("MinPagingFileSize 204800"),
                                     Ini("MaxPagingFileSize 204800"), Ini("Paging removed")));
  EXPECT_EQ(rig.SystemIni(),
            "[386Enh]\r\nEMMExclude=A000\r\nPagingDrive=C:\r\nMinPagingFileSize=204800\r\n"
            "MaxPagingFileSize=204800\r\n");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNo | os::kMbDefaultButton2);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbYesNo | os::kMbIconInformation);
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST_F(SwapSaving, SavedSetupIsShownAtTheNextStart) {
  StartWithRecord("");
  Tab().optSwap2.Press();
  SetSize("200");
  Save({os::kIdYes, os::kIdNo});
  rig.Restart(screens::kSwapFileTab);
  EXPECT_TRUE(Tab().optSwap2.Selected());
  EXPECT_EQ(Tab().Text8.Text(), "200");
  EXPECT_EQ(Tab().Combo3.Text(), "C:\\ 2000MB Free");
}

TEST_F(SwapSaving, AnswerNoWritesOnlyTheRecord) {
  Start(kOptimised);
  Save({os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion));
  EXPECT_EQ(rig.SystemIni(), kOptimised);
  EXPECT_EQ(rig.machine.ReadFile(kBackupPath), kOptimised);
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "OldPagingDrive"), "C:");
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "OldMinPagingFileSize"),
            "131072");
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "OldMaxPagingFileSize"),
            "131072");
}

TEST_F(SwapSaving, RecordComesBeforeTheQuestion) {
  Start(kOptimised);
  std::size_t changes_at_question = 0;
  rig.machine.WhileBoxIsOpen([&] { changes_at_question = Changes().size(); });
  Save({os::kIdNo});
  EXPECT_EQ(changes_at_question, Changes().size());
  EXPECT_GT(changes_at_question, 5U);
}

class SwapSavingOf : public SwapSaving, public testing::WithParamInterface<const char*> {};

TEST_P(SwapSavingOf, EitherSetupOffersTheRestartAfterEverythingIsWritten) {
  StartWithRecord(GetParam());
  std::vector<std::size_t> changes_at_boxes;
  rig.machine.WhileBoxIsOpen([&] { changes_at_boxes.push_back(Changes().size()); });
  Save({os::kIdYes, os::kIdNo});
  const std::size_t changes = Changes().size();
  EXPECT_GT(changes, 0U);
  EXPECT_THAT(changes_at_boxes, ElementsAre(0U, changes));
}

INSTANTIATE_TEST_SUITE_P(Both, SwapSavingOf, testing::Values(kOptimised, "[386Enh]\r\nEMMExclude=A000\r\n"));

TEST_F(SwapSaving, UnansweredBoxWritesNothing) {
  StartWithRecord(kOptimised);
  rig.machine.WhileBoxIsOpen([this] { rig.machine.EndBoxes(); });
  Save();
  EXPECT_TRUE(Changes().empty());
}

TEST_F(SwapSaving, YesRestartsTheMachineAndEndsTheProgram) {
  StartWithRecord(kOptimised);
  Save({os::kIdYes, os::kIdYes});
  EXPECT_EQ(rig.machine.RestartCount(), 1);
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "6");
}

TEST_F(SwapSaving, SizeOfTheWholeMemoryIsAcceptedAndOneLessRefused) {
  StartWithRecord(kOptimised);
  SetSize("64");
  Save({os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion));
  SetSize("63");
  Save();
  EXPECT_EQ(Box(1),
            "It is not very safe to set the swapfile size this low. The lowest Quondix will allow you to set "
            "on this system is 64 MB.");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk);
  EXPECT_EQ(rig.machine.Boxes()[1].title, "Q-DIX");
  EXPECT_TRUE(Changes().empty());
}

class FractionOfMemory : public SwapSaving {
 protected:
  FractionOfMemory() : SwapSaving(64.9) {}
};

TEST_F(FractionOfMemory, LowestSizeIsTheWholePartOfTheMemory) {
  StartWithRecord(kOptimised);
  SetSize("64");
  Save({os::kIdNo});
  EXPECT_EQ(Box(0), kQuestion);
}

TEST_F(SwapSaving, With500FreeASizeOf480IsAcceptedAnd481Refused) {
  SetFree(500);
  StartWithRecord(kOptimised);
  SetSize("480");
  Save({os::kIdNo});
  SetSize("481");
  Save();
  EXPECT_EQ(Box(0), kQuestion);
  EXPECT_EQ(Box(1),
            "The size you have selected is too large.  You should decrease the Swapfile size, make some more "
            "space available on C: disk, or consider using a different fixed hard disk.\r\nThe maximum size "
            "you may allocate to the C: is 480 MB.");
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbOk);
  EXPECT_TRUE(Changes().empty());
}

// The file size is in megabytes of 1,048,576 bytes, the free space in megabytes of 1,024,000.
TEST_F(SwapSaving, LargestAcceptedSizeCanExceedTheFreeSpace) {
  SetFree(1000);
  StartWithRecord(kOptimised);
  SetSize("980");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(Changes(), testing::Contains(Ini("MinPagingFileSize 1003520")));
  EXPECT_GT(1003520ULL * 1024, FreeBytes(1000));
}

// 499.5 rounds to the even 500, and 500.5 also rounds to 500.
TEST_F(SwapSaving, FreeSpaceIsRoundedHalfToEven) {
  StartWithRecord(kOptimised);
  for (const double free_mb : {499.5, 500.5}) {
    SetFree(free_mb);
    SetSize("481");
    Save();
    EXPECT_THAT(rig.BoxTexts().back(), testing::EndsWith("is 480 MB.")) << free_mb;
  }
}

TEST_F(SwapSaving, UnreadableDriveRefusesEverySize) {
  StartWithRecord(kOptimised);
  rig.machine.FailNextCall("GetDiskFreeSpaceExA");
  Save();
  EXPECT_THAT(Box(0), testing::EndsWith("The maximum size you may allocate to the C: is -20 MB."));
}

TEST_F(SwapSaving, NoDriveSelectedRefusesEverySize) {
  StartWithRecord("[386Enh]\r\nPagingDrive=Z:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n");
  Save();
  EXPECT_THAT(Box(0), testing::HasSubstr("make some more space available on  disk, or"));
  EXPECT_TRUE(Changes().empty());
}

TEST_F(SwapSaving, EmptySizeIsRefusedAsTooLow) {
  StartWithRecord(kOptimised);
  SetSize("\b");
  Save();
  EXPECT_THAT(Box(0), StartsWith("It is not very safe"));
}

// The size is still being edited when a key presses the button: the text in the box counts.
TEST_F(SwapSaving, FractionIsWrittenAsItsKilobytes) {
  StartWithRecord("[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=100000\r\nMaxPagingFileSize=100000\r\n");
  Tab().optSwap2.Press();
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(Changes(), ElementsAre(Ini("PagingDrive C:"), Ini("MinPagingFileSize 100000"),
                                     Ini("MaxPagingFileSize 100000"), Ini("Paging removed")));
}

TEST_F(SwapSaving, WindowsDefaultRemovesTheEntriesAndSwitchesPagingOn) {
  StartWithRecord(std::string(kOptimised) + "Other=1\r\n");
  Tab().optSwap1.Press();
  Save({os::kIdYes, os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kDefaultQuestion, kDefaultRestart));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbYesNo);
  EXPECT_EQ(rig.machine.Boxes()[1].flags, os::kMbYesNo);
  EXPECT_THAT(Changes(), ElementsAre(Ini("PagingDrive removed"), Ini("MinPagingFileSize removed"),
                                     Ini("MaxPagingFileSize removed"), Ini("Paging on")));
  EXPECT_EQ(rig.SystemIni(), "[386Enh]\r\nOther=1\r\nPaging=on\r\n");
  EXPECT_EQ(rig.machine.RestartCount(), 0);
}

TEST_F(SwapSaving, WindowsDefaultWithNoWritesNothing) {
  StartWithRecord(kOptimised);
  Tab().optSwap1.Press();
  Save({os::kIdNo});
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kDefaultQuestion));
  EXPECT_TRUE(Changes().empty());
}

TEST_F(SwapSaving, WindowsDefaultRestartsIfTheUserAgrees) {
  StartWithRecord(kOptimised);
  Tab().optSwap1.Press();
  Save({os::kIdYes, os::kIdYes});
  EXPECT_THAT(Changes(), testing::Contains("ExitWindowsEx(2, 0)"));
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(SwapSaving, ForeignSetupIsLeftAlone) {
  Start("[386Enh]\r\nPagingDrive=C:\r\n");
  Save();
  EXPECT_THAT(rig.BoxTexts(), ElementsAre("No changes have been made to your virtual memory settings."));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk);
  EXPECT_EQ(rig.SystemIni(), "[386Enh]\r\nPagingDrive=C:\r\n");
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kMachineKeyPath, "FirstSave"), "1");
}

TEST_F(SwapSaving, WriteProtectedFileStaysUnchanged) {
  StartWithRecord(kOptimised);
  rig.machine.ProtectFile(kSystemIniPath);
  SetSize("200");
  Save({os::kIdYes, os::kIdNo});
  EXPECT_EQ(rig.SystemIni(), kOptimised);
  EXPECT_THAT(rig.BoxTexts(), ElementsAre(kQuestion, kRestart));
}

TEST_F(SwapSaving, SuggestionNamesTheFirstDriveWithRoom) {
  SetFree(292);
  rig.machine.AddDrive('D', {.total_bytes = FreeBytes(9000), .free_bytes = FreeBytes(293)});
  StartWithRecord(kOptimised);
  Tab().cmdBeginnerSwapFile.Press();
  EXPECT_THAT(rig.BoxTexts(),
              ElementsAre("Quondix suggests configuring your swapfile on your D: at a size of 192 MB.\r\n\r\n"
                          "If you are an advanced Windows user and you have more than one physical hard disk "
                          "then you may want to view the tips help screen for information on how to further "
                          "configure your virtual memory settings. This is located by pressing the button "
                          "with the lightbulb on this screen.\r\n\r\n"
                          "It is recomended that you run the Disk Defragmenter on this drive first.\r\n\r\n"
                          "For changes to be made you must press the Save button."));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(Tab().Combo3.Text(), "D:\\ 293MB Free");
  EXPECT_EQ(Tab().Text8.Text(), "192");
  EXPECT_EQ(Tab().VScroll4.Value(), 192);
  EXPECT_TRUE(Tab().optSwap2.Selected());
  EXPECT_TRUE(Changes().empty());
}

TEST_F(SwapSaving, SuggestionWithoutRoomLeavesItToWindows) {
  SetFree(292);
  rig.machine.AddDrive('D', {.total_bytes = FreeBytes(9000), .free_bytes = FreeBytes(5)});
  StartWithRecord(kOptimised);
  Tab().cmdBeginnerSwapFile.Press();
  EXPECT_THAT(rig.BoxTexts(),
              ElementsAre("Quondix suggests you leave your virtual memory settings configured to Window's "
                          "default settings.\r\n\r\n"
                          "Your Hard Disks do not have enough free disk space available as you should have "
                          "at least 292 MB free.\r\n\r\n"
                          "You should consider doing one of the following, and then try again.\r\n"
                          "(1) Increase the amount of free disk space on your computer by deleting some "
                          "unwanted file or uninstall any unwanted program.\r\n"
                          "(2) Move some files from one drive to another to fit."
                          "(3) Install another (or larger) Hard Disk onto your computer."));
  EXPECT_TRUE(Tab().optSwap1.Selected());
  EXPECT_FALSE(Tab().Frame11.Enabled());
  EXPECT_EQ(Tab().Text8.Text(), "128");
}

TEST_F(SwapSaving, SuggestionWithoutAnyDriveMentionsOneDisk) {
  rig.machine.AddDrive('C', {.type = 5});
  StartWithRecord("");
  Tab().optSwap2.Press();
  Tab().cmdBeginnerSwapFile.Press();
  EXPECT_THAT(rig.BoxTexts(),
              ElementsAre("Quondix suggests you leave your virtual memory settings configured to Window's "
                          "default settings for now.\r\n\r\n"
                          "Your Hard Disk does not have enough free disk space available as you should have "
                          "at least 292 MB free.\r\n\r\n"
                          "You should consider doing one of the following, and then try again.\r\n"
                          "(1) Increase the amount of free disk space on your computer by deleting some "
                          "unwanted files or uninstall any unwanted program.\r\n"
                          "(2) Install a second Hard Disk onto your computer."));
  EXPECT_TRUE(Tab().optSwap1.Selected());
}

TEST_F(SwapSaving, DefragmenterReplacesTheProgram) {
  rig.machine.AddDrive('D', {.total_bytes = FreeBytes(9000), .free_bytes = FreeBytes(500)});
  StartWithRecord("[386Enh]\r\nPagingDrive=D:\r\n");
  rig.Answer({os::kIdOk});
  Tab().Command26.Press();
  EXPECT_THAT(rig.BoxTexts(),
              ElementsAre("Ok to run the Disk Defragmenter now?  Quondix will close down for this process."));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOkCancel);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_THAT(rig.machine.StartedPrograms(), ElementsAre("defrag D:"));
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(SwapSaving, CancelledDefragmenterDoesNothing) {
  StartWithRecord(kOptimised);
  rig.Answer({os::kIdCancel});
  Tab().Command26.Press();
  EXPECT_TRUE(rig.machine.StartedPrograms().empty());
  EXPECT_FALSE(rig.program->Form().Unloaded());
}

TEST_F(SwapSaving, MissingDefragmenterIsARunTimeError) {
  rig.machine.RemoveProgram("defrag");
  StartWithRecord(kOptimised);
  rig.Answer({os::kIdOk});
  Tab().Command26.Press();
  EXPECT_EQ(Box(1), "Run-time error '53':\r\n\r\nFile not found");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

// On a machine whose total reads as negative, the suggested size does not fit the bar.
TEST_F(SwapSaving, SuggestionOnAMachineOf2GigabytesIsARunTimeError) {
  StartWithRecord(kOptimised);
  rig.machine.SetMemory(0xF0000000U, 0x10000000U, 0xF0000000U, 0x10000000U);
  Tab().cmdBeginnerSwapFile.Press();
  EXPECT_EQ(Box(0), "Run-time error '380':\r\n\r\nInvalid property value");
}

}  // namespace
}  // namespace qdix::tests
