// The "Optimize Swapfile" tab of the shipped exe: what it shows of the machine, what a save asks and writes,
// what it refuses, and the start of the disk defragmenter.
#include <algorithm>
#include <cmath>

#include "screens/main_window.h"
#include "tests/e2e/driver/drop_down.h"
#include "tests/e2e/driver/fake_disk.h"
#include "tests/e2e/driver/ranges.h"
#include "tests/e2e/machine.h"
#include "tests/e2e/tuning_session.h"

namespace qdix::e2e {
namespace {

constexpr const char* kSaveQuestion = "Are you sure you want to configure your Virtual Memory Settings?";
constexpr const char* kDefaultQuestion =
    "Are you sure you want to set the virtual memory (swapfile) settings to Window's default settings?";
constexpr const char* kDefaultRestartQuestion =
    "Quondix has reset your virtual memory settings to the system's defaults.\r\n"
    "These settings will not take place until you reboot your system. You should save any work "
    "before re-starting Windows.  Do you want to restart Windows now?";
constexpr const char* kDefragQuestion =
    "Ok to run the Disk Defragmenter now?  Quondix will close down for this process.";

constexpr std::uint64_t kMegabyte = 1024000;

/// A setup made by this program: both sizes are 128 MB.
constexpr const char* kOwnSetup =
    "[386Enh]\r\ndevice=*vpowerd\r\nPagingDrive=C:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize="
    "131072\r\n";
constexpr const char* kOtherSetup =
    "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=100000\r\nMaxPagingFileSize=100000\r\n";

/// Returns the free bytes on a drive, at most 2 GB, as the classic query answers.
double ClassicFreeBytes(const char* root) {
  DWORD sectors_per_cluster = 0;
  DWORD bytes_per_sector = 0;
  DWORD free_clusters = 0;
  DWORD clusters = 0;
  EXPECT_TRUE(GetDiskFreeSpaceA(root, &sectors_per_cluster, &bytes_per_sector, &free_clusters, &clusters))
      << root;
  return static_cast<double>(sectors_per_cluster) * bytes_per_sector * free_clusters;
}

/// Returns the free bytes on a drive.
double ExtendedFreeBytes(const char* root) {
  ULARGE_INTEGER available = {};
  ULARGE_INTEGER total = {};
  ULARGE_INTEGER free = {};
  EXPECT_TRUE(GetDiskFreeSpaceExA(root, &available, &total, &free)) << root;
  return static_cast<double>(free.QuadPart);
}

/// Returns the free megabytes of 1,024,000 bytes on a drive, right now, as the machine under test counts
/// them.
double FreeMb(const char* root) {
  const bool is_rtm = strict95::ChosenMachine() == strict95::Machine::kRtm;
  return (is_rtm ? ClassicFreeBytes(root) : ExtendedFreeBytes(root)) / 1000000 / 1.024;
}

/// The system's editor under the name of the defragmenter, which Wine does not have. The editor takes its
/// argument for a file name and shows that name if there is no such file.
class StandInDefragmenter {
 public:
  StandInDefragmenter() { SetWindowsFile(kFile, WindowsFile("notepad.exe")); }
  StandInDefragmenter(const StandInDefragmenter&) = delete;
  StandInDefragmenter& operator=(const StandInDefragmenter&) = delete;
  ~StandInDefragmenter() {
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, ProcessId());
    if (process != nullptr) {
      TerminateProcess(process, 0);
      WaitForSingleObject(process, kDeadlineMs);
      CloseHandle(process);
    }
    SetWindowsFile(kFile, std::nullopt);
  }

  /// Returns what it says about the file; empty if it does not run or says nothing.
  [[nodiscard]] std::string Says() const {
    const std::vector<MessageBox> boxes =
        ProcessId() == 0 ? std::vector<MessageBox>() : MessageBoxesOf(ProcessId());
    return boxes.empty() ? std::string() : boxes.front().text;
  }

 private:
  static constexpr const char* kFile = "defrag.exe";

  [[nodiscard]] static DWORD ProcessId() {
    DWORD process_id = 0;
    GetWindowThreadProcessId(FindWindowA("Notepad", nullptr), &process_id);
    return process_id;
  }
};

class SwapFileSession : public TuningSession {
 protected:
  void StartOnSwapFileTab() { StartOnTab(screens::kSwapFileTab); }
  void StartWith(const char* system_ini) {
    SetSystemIni(system_ini);
    StartOnSwapFileTab();
  }

  void ExpectOption(const std::string& selected) const {
    EXPECT_TRUE(Becomes([&] { return program.IsChecked(selected); })) << selected;
    for (const std::string option : {"optSwap1", "optSwap2", "optSwap3"}) {
      EXPECT_EQ(program.IsChecked(option), option == selected) << option;
    }
  }
  void ExpectSizeControlsEnabled(bool enabled) const {
    for (const char* const name : {"Frame11", "Combo3", "Text8", "VScroll4", "cmdBeginnerSwapFile"}) {
      EXPECT_TRUE(Becomes([&] { return program.IsEnabled(name) == enabled; })) << name;
    }
  }
  /// Expects this text, and this value of the bar. The bar counts upward, so its upper end is the largest
  /// size.
  void ExpectSize(const std::string& text, int bar_mb) const {
    EXPECT_TRUE(Becomes([&] { return program.Text("Text8") == text; })) << program.Text("Text8");
    EXPECT_TRUE(Becomes([&] { return BarMb() == bar_mb; })) << BarMb();
  }
  [[nodiscard]] int BarMb() const {
    constexpr int kGreatestMb = 32750;
    return kGreatestMb - ScrollPosition(program.Control("VScroll4"));
  }

  void ChooseToOptimise() const {
    GoTo('O', "optSwap2");
    ExpectOption("optSwap2");
    ExpectSizeControlsEnabled(true);
  }
  /// Replaces the size in the box.
  void TypeSize(const std::string& text) const {
    GoTo('Z', "Text8");
    PressKey(VK_END);
    for (std::size_t count = program.Text("Text8").size(); count > 0; --count) PressKey(VK_BACK);
    TypeText(text);
    ASSERT_TRUE(Becomes([&] { return program.Text("Text8") == text; })) << program.Text("Text8");
  }
  static void PressSave() { PressKeyWith(VK_MENU, 'S'); }

  void PlayFreeMb(FakeDisk& disk, int free_mb) const {
    ASSERT_TRUE(disk.Play(static_cast<std::uint64_t>(free_mb) * kMegabyte));
  }
  /// Expects the message of the untrapped error, and then the end of the program.
  void ExpectErrorAndEnd(const std::string& error) const {
    Answer(error, IDOK);
    ExpectCleanEnd(program);
  }

  const Machine machine;
  const std::string lowest_mb = std::to_string(machine.WholeMb());
};

TEST_F(SwapFileSession, FreshMachineIsManagedByWindows) {
  StartOnSwapFileTab();
  ExpectOption("optSwap1");
  ExpectSizeControlsEnabled(false);
  ExpectSize(std::to_string(machine.ProposedSwapMb()), machine.ProposedSwapMb());
  EXPECT_TRUE(program.IsEnabled("Command18"));
  EXPECT_TRUE(program.IsEnabled("Command26"));
  CloseProgram();
}

TEST_F(SwapFileSession, DrivesAreListedWithTheirFreeSpace) {
  // Other programs write to the same disk during the test.
  constexpr double kSlackMb = 512;
  const double c_before = FreeMb("C:\\");
  const double z_before = FreeMb("Z:\\");
  StartWith(kOwnSetup);
  const double c_after = FreeMb("C:\\");
  const double z_after = FreeMb("Z:\\");
  const HWND list = program.Control("Combo3");
  ASSERT_EQ(RowCount(list), 2);
  EXPECT_EQ(SelectedRow(list), 0);
  const auto expect_drive = [&](const std::string& root, double before, double after) {
    const std::string text = program.Text("Combo3");
    const double shown_mb = std::atof(text.c_str() + root.size());
    EXPECT_EQ(text, root + " " + std::to_string(static_cast<long long>(shown_mb)) + "MB Free");
    EXPECT_GE(shown_mb, std::floor(std::min(before, after)) - kSlackMb) << text;
    EXPECT_LE(shown_mb, std::max(before, after) + kSlackMb) << text;
  };
  expect_drive("C:\\", c_before, c_after);
  GoTo('H', "Combo3");
  ASSERT_TRUE(ChooseByArrows(list, 1));
  expect_drive("Z:\\", z_before, z_after);
  CloseProgram();
}

TEST_F(SwapFileSession, EqualSizesAreOptimised) {
  StartWith(kOwnSetup);
  ExpectOption("optSwap2");
  ExpectSizeControlsEnabled(true);
  ExpectSize("128", 128);
  CloseProgram();
}

TEST_F(SwapFileSession, SizesOfOddKilobytesAreAForeignSetup) {
  StartWith(kOtherSetup);
  ExpectOption("optSwap3");
  ExpectSizeControlsEnabled(false);
  ExpectSize("97.65625", 98);
  CloseProgram();
}

TEST_F(SwapFileSession, StoredDriveIsSelected) {
  StartWith("[386Enh]\r\nPagingDrive=Z:\\\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n");
  ExpectOption("optSwap2");
  EXPECT_EQ(SelectedRow(program.Control("Combo3")), 1);
  EXPECT_TRUE(program.Text("Combo3").starts_with("Z:\\ ")) << program.Text("Combo3");
  CloseProgram();
}

TEST_F(SwapFileSession, PagingSwitchedOffIsAForeignSetupAndLeftAlone) {
  StartWith("[386Enh]\r\nPaging=off\r\n");
  ExpectOption("optSwap3");
  ExpectSizeControlsEnabled(false);
  PressSave();
  Answer("No changes have been made to your virtual memory settings.", IDOK);
  EXPECT_EQ(SystemIni(), "[386Enh]\r\nPaging=off\r\n");
  CloseProgram();
}

TEST_F(SwapFileSession, ChosenSizeIsWrittenRecordedAndShownByTheNextStart) {
  SetSystemIni(
      "[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\ndevice=*vpowerd\r\nPaging=on\r\n[vcache]\r\nchunksize="
      "1024\r\n");
  const std::optional<std::string> before = WindowsFile(kSystemIni);
  StartOnSwapFileTab();
  FakeDisk disk(program.Process());
  PlayFreeMb(disk, machine.WholeMb() + 20);
  ChooseToOptimise();
  TypeSize(lowest_mb);
  PressSave();
  ExpectBox(kSaveQuestion);
  EXPECT_EQ(ButtonWithKeyboard(), IDNO);
  Answer(kSaveQuestion, IDYES);
  Answer(kRestartQuestion, IDNO);
  const std::string size_kb = std::to_string(machine.WholeMb() * 1024);
  CloseProgram();
  EXPECT_EQ(
      SystemIni(),
      "[boot]\r\nshell=Explorer.exe\r\n[386Enh]\r\ndevice=*vpowerd\r\nPagingDrive=C:\r\nMinPagingFileSize=" +
          size_kb + "\r\nMaxPagingFileSize=" + size_kb + "\r\n[vcache]\r\nchunksize=1024\r\n");
  EXPECT_EQ(WindowsFile(kSystemBackup), before);
  EXPECT_EQ(TextsOf(kMachineKey), (RegistryTexts{{"HasRun", "1"},
                                                 {"FirstSave", "1"},
                                                 {"OldMinCache", "0"},
                                                 {"OldMaxCache", "0"},
                                                 {"OldChunk", "1024"},
                                                 {"OldFileCache", "Desktop"}}));
  StartOnSwapFileTab();
  ExpectOption("optSwap2");
  ExpectSize(lowest_mb, machine.WholeMb());
  CloseProgram();
}

TEST_F(SwapFileSession, NoAtTheQuestionLeavesSystemIniAndKeepsTheRecord) {
  StartWith(kOtherSetup);
  FakeDisk disk(program.Process());
  PlayFreeMb(disk, machine.WholeMb() + 20);
  ChooseToOptimise();
  TypeSize(lowest_mb);
  PressSave();
  ExpectBox(kSaveQuestion);
  PressKey(VK_RETURN);
  EXPECT_TRUE(Becomes([this] { return program.MessageBoxes().empty(); }));
  EXPECT_EQ(SystemIni(), kOtherSetup);
  EXPECT_EQ(RegistryText(kMachineKey, "OldPagingDrive"), "C:");
  EXPECT_EQ(RegistryText(kMachineKey, "OldMinPagingFileSize"), "100000");
  EXPECT_EQ(RegistryText(kMachineKey, "OldMaxPagingFileSize"), "100000");
  CloseProgram();
}

TEST_F(SwapFileSession, SizeBelowTheMemoryIsRefused) {
  StartWith(kOwnSetup);
  TypeSize(std::to_string(machine.WholeMb() - 1));
  PressSave();
  Answer(
      "It is not very safe to set the swapfile size this low. The lowest Quondix will allow you to set on "
      "this system is " +
          lowest_mb + " MB.",
      IDOK);
  EXPECT_EQ(SystemIni(), kOwnSetup);
  CloseProgram();
}

TEST_F(SwapFileSession, SizeThatLeavesLessThanTwentyMegabytesIsRefused) {
  StartWith(kOwnSetup);
  FakeDisk disk(program.Process());
  PlayFreeMb(disk, machine.WholeMb() + 20);
  TypeSize(std::to_string(machine.WholeMb() + 1));
  PressSave();
  Answer(
      "The size you have selected is too large.  You should decrease the Swapfile size, make some more "
      "space available on C: disk, or consider using a different fixed hard disk.\r\nThe maximum size you "
      "may allocate to the C: is " +
          lowest_mb + " MB.",
      IDOK);
  EXPECT_EQ(SystemIni(), kOwnSetup);
  CloseProgram();
}

TEST_F(SwapFileSession, YesToTheRestartRequestsOneAndEndsTheProgram) {
  StartOnSwapFileTab();
  FakeDisk disk(program.Process());
  PlayFreeMb(disk, machine.WholeMb() + 20);
  ChooseToOptimise();
  TypeSize(lowest_mb);
  PressSave();
  Answer(kSaveQuestion, IDYES);
  Answer(kRestartQuestion, IDYES);
  ExpectRestartAndEnd();
  EXPECT_EQ(SystemIniText("386Enh", "PagingDrive"), "C:");
}

TEST_F(SwapFileSession, WindowsDefaultRemovesTheEntriesAndSwitchesPagingOn) {
  StartWith(kOwnSetup);
  GoTo('W', "optSwap1");
  ExpectOption("optSwap1");
  ExpectSizeControlsEnabled(false);
  PressSave();
  ExpectBox(kDefaultQuestion);
  EXPECT_EQ(ButtonWithKeyboard(), IDYES);
  PressKey(VK_RETURN);
  Answer(kDefaultRestartQuestion, IDNO);
  CloseProgram();
  EXPECT_EQ(SystemIni(), "[386Enh]\r\ndevice=*vpowerd\r\nPaging=on\r\n");
  EXPECT_EQ(WindowsFile(kSystemBackup), kOwnSetup);
  EXPECT_EQ(RegistryText(kMachineKey, "OldMaxPagingFileSize"), "131072");
  StartOnSwapFileTab();
  ExpectOption("optSwap1");
  CloseProgram();
}

TEST_F(SwapFileSession, WindowsDefaultIsNotWrittenWithoutAYes) {
  StartWith(kOwnSetup);
  GoTo('W', "optSwap1");
  PressSave();
  Answer(kDefaultQuestion, IDNO);
  EXPECT_EQ(SystemIni(), kOwnSetup);
  CloseProgram();
}

TEST_F(SwapFileSession, YesToTheRestartAfterTheWindowsDefaultRequestsOne) {
  StartWith(kOwnSetup);
  GoTo('W', "optSwap1");
  PressSave();
  Answer(kDefaultQuestion, IDYES);
  Answer(kDefaultRestartQuestion, IDYES);
  ExpectRestartAndEnd();
}

TEST_F(SwapFileSession, ArrowsOfTheBarChangeTheSizeByFive) {
  StartWith(kOwnSetup);
  ASSERT_TRUE(ClickUpArrow(program.Control("VScroll4")));
  ExpectSize("133", 133);
  ASSERT_TRUE(ClickDownArrow(program.Control("VScroll4")));
  ExpectSize("128", 128);
  ASSERT_TRUE(ClickDownArrow(program.Control("VScroll4")));
  ExpectSize("123", 123);
  CloseProgram();
}

TEST_F(SwapFileSession, ArrowsOfTheBarLookEnabledOnlyWhenTheyAre) {
  StartWith(kOwnSetup);
  const auto look_enabled = [this] { return ArrowsLookEnabled(program.Control("VScroll4")); };
  EXPECT_TRUE(Becomes(look_enabled));
  GoTo('W', "optSwap1");
  EXPECT_TRUE(Becomes([&] { return !look_enabled(); }));
  GoTo('O', "optSwap2");
  EXPECT_TRUE(Becomes(look_enabled));
  CloseProgram();
}

TEST_F(SwapFileSession, ArrowsOfTheBarLookDisabledFromTheStart) {
  StartOnSwapFileTab();
  EXPECT_TRUE(Becomes([this] { return !ArrowsLookEnabled(program.Control("VScroll4")); }));
  CloseProgram();
}

TEST_F(SwapFileSession, LettersAreIgnoredAndLeavingTheBoxMovesTheBar) {
  StartWith(kOwnSetup);
  GoTo('Z', "Text8");
  PressKey(VK_END);
  TypeText("x0y7");
  ExpectSize("12807", 128);
  TypeSize("0150");
  PressKey(VK_TAB);
  ExpectKeyboardOn("VScroll4");
  ExpectSize("150", 150);
  CloseProgram();
}

TEST_F(SwapFileSession, SizeBeyondTheBarIsAnErrorThatEndsTheProgram) {
  StartWith(kOwnSetup);
  TypeSize("32751");
  PressKey(VK_TAB);
  ExpectErrorAndEnd("Run-time error '380':\r\n\r\nInvalid property value");
  EXPECT_EQ(SystemIni(), kOwnSetup);
}

TEST_F(SwapFileSession, AccessKeysReachOptionsDrivesAndSize) {
  StartWith(kOwnSetup);
  GoTo('H', "Combo3");
  GoTo('Z', "Text8");
  GoTo('W', "optSwap1");
  ExpectOption("optSwap1");
  GoTo('T', "optSwap3");
  ExpectOption("optSwap3");
  GoTo('O', "optSwap2");
  ExpectOption("optSwap2");
  CloseProgram();
}

TEST_F(SwapFileSession, SuggestionNamesDriveAndSizeAndWritesNothing) {
  StartWith(kOwnSetup);
  FakeDisk disk(program.Process());
  PlayFreeMb(disk, machine.SuggestedSwapMb() + 101);
  const std::string size = std::to_string(machine.SuggestedSwapMb());
  PressKeyWith(VK_MENU, 'G');
  Answer("Quondix suggests configuring your swapfile on your C: at a size of " + size +
             " MB.\r\n\r\n"
             "If you are an advanced Windows user and you have more than one physical hard disk then you may "
             "want to view the tips help screen for information on how to further configure your virtual "
             "memory settings. This is located by pressing the button with the lightbulb on this "
             "screen.\r\n\r\n"
             "It is recomended that you run the Disk Defragmenter on this drive first.\r\n\r\n"
             "For changes to be made you must press the Save button.",
         IDOK);
  ExpectSize(size, machine.SuggestedSwapMb());
  EXPECT_EQ(SelectedRow(program.Control("Combo3")), 0);
  EXPECT_EQ(SystemIni(), kOwnSetup);
  EXPECT_EQ(RegistryText(kMachineKey, "FirstSave"), std::nullopt);
  CloseProgram();
}

TEST_F(SwapFileSession, SuggestionWithoutRoomLeavesItToWindows) {
  StartWith(kOwnSetup);
  FakeDisk disk(program.Process());
  PlayFreeMb(disk, machine.SuggestedSwapMb() + 100);
  PressKeyWith(VK_MENU, 'G');
  Answer(
      "Quondix suggests you leave your virtual memory settings configured to Window's default "
      "settings.\r\n\r\n"
      "Your Hard Disks do not have enough free disk space available as you should have at least " +
          std::to_string(machine.SuggestedSwapMb() + 100) +
          " MB free.\r\n\r\n"
          "You should consider doing one of the following, and then try again.\r\n"
          "(1) Increase the amount of free disk space on your computer by deleting some unwanted file or "
          "uninstall any unwanted program.\r\n"
          "(2) Move some files from one drive to another to fit."
          "(3) Install another (or larger) Hard Disk onto your computer.",
      IDOK);
  ExpectOption("optSwap1");
  ExpectSizeControlsEnabled(false);
  CloseProgram();
}

TEST_F(SwapFileSession, CancelKeepsTheProgramAndStartsNoDefragmenter) {
  const SystemIniKeeper before;
  StartOnSwapFileTab();
  PressKeyWith(VK_MENU, 'D');
  Answer(kDefragQuestion, IDCANCEL);
  EXPECT_TRUE(IsWindowVisible(program.MainWindow()));
  ExpectKeyboardOn("Command26");
  CloseProgram();
  EXPECT_TRUE(before.NothingChanged());
}

/// Wine has no such program.
TEST_F(SwapFileSession, MissingDefragmenterIsAnErrorThatEndsTheProgram) {
  StartOnSwapFileTab();
  PressKeyWith(VK_MENU, 'D');
  Answer(kDefragQuestion, IDOK);
  ExpectErrorAndEnd("Run-time error '53':\r\n\r\nFile not found");
}

TEST_F(SwapFileSession, DefragmenterReplacesTheProgramOnTheSelectedDrive) {
  const StandInDefragmenter defragmenter;
  StartWith(kOwnSetup);
  GoTo('H', "Combo3");
  ASSERT_TRUE(ChooseByArrows(program.Control("Combo3"), 1));
  PressKeyWith(VK_MENU, 'D');
  Answer(kDefragQuestion, IDOK);
  ExpectCleanEnd(program);
  EXPECT_TRUE(Eventually([&] { return defragmenter.Says().find("Z:") != std::string::npos; }))
      << defragmenter.Says();
}

TEST_F(SwapFileSession, FilledTabIsPhotographed) {
  StartWith(kOwnSetup);
  ExpectSize("128", 128);
  PhotographTab("swapfile_optimised");
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
