// The "Optimize Swapfile" tab: which setup it derives from system.ini, what it proposes, and how its size is
// edited.
#include <gtest/gtest.h>

#include "tests/support/tuning_rig.h"

namespace qdix::tests {
namespace {

/// Entries of [386Enh] and what the tab shows for them on a machine of 64 MB with 2,000 MB free on drive C.
struct Setup {
  const char* what;
  std::string entries;
  int option;
  std::string drive;
  std::string size;
  std::int32_t bar;
};

void PrintTo(const Setup& setup, std::ostream* out) { *out << setup.what; }

int SelectedOption(const screens::SwapFileScreen& tab) {
  EXPECT_EQ(tab.optSwap1.Selected() + tab.optSwap2.Selected() + tab.optSwap3.Selected(), 1);
  if (tab.optSwap1.Selected()) return 1;
  return tab.optSwap2.Selected() ? 2 : 3;
}

void ExpectSizeControls(const screens::SwapFileScreen& tab, bool enabled) {
  EXPECT_EQ(tab.Frame11.Enabled(), enabled);
  EXPECT_EQ(tab.Combo3.Enabled(), enabled);
  EXPECT_EQ(tab.Text8.Enabled(), enabled);
  EXPECT_EQ(tab.VScroll4.Enabled(), enabled);
  EXPECT_EQ(tab.cmdBeginnerSwapFile.Enabled(), enabled);
}

class LoadedSetup : public testing::TestWithParam<Setup> {};

TEST_P(LoadedSetup, IsDerivedFromTheEntries) {
  TuningRig rig;
  rig.machine.AddDrive('D', {.total_bytes = FreeBytes(9000), .free_bytes = FreeBytes(500)});
  rig.WriteSystemIni("[boot]\r\nshell=x\r\n[386Enh]\r\n" + GetParam().entries);
  rig.StartAt(screens::kSwapFileTab);
  const screens::SwapFileScreen& tab = rig.program->SwapFileScreen();
  EXPECT_EQ(SelectedOption(tab), GetParam().option);
  EXPECT_EQ(tab.Combo3.Text(), GetParam().drive);
  EXPECT_EQ(tab.Text8.Text(), GetParam().size);
  EXPECT_EQ(tab.VScroll4.Value(), GetParam().bar);
  ExpectSizeControls(tab, GetParam().option == 2);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

constexpr const char* kC = "C:\\ 2000MB Free";
constexpr const char* kD = "D:\\ 500MB Free";

INSTANTIATE_TEST_SUITE_P(
    Table, LoadedSetup,
    testing::Values(
        Setup{"nothing", "", 1, kC, "192", 192}, Setup{"Paging on", "Paging=on\r\n", 1, kC, "192", 192},
        Setup{"Paging on and more", "Paging=  only \r\n", 1, kC, "192", 192},
        Setup{"Paging On", "Paging=On\r\n", 3, kC, "192", 192},
        Setup{"Paging off", "Paging=off\r\n", 3, kC, "192", 192},
        Setup{"Paging empty", "Paging=\r\n", 3, kC, "192", 192},
        Setup{"Paging of one character", "Paging=1\r\n", 1, kC, "192", 192},
        Setup{"drive of one letter counts as none", "PagingDrive=D\r\n", 1, kC, "192", 192},
        Setup{"sizes without a drive", "MinPagingFileSize=65536\r\nMaxPagingFileSize=65536\r\n", 1, kC, "192",
              192},
        Setup{"drive alone", "PagingDrive=D:\r\n", 3, kD, "192", 192},
        Setup{"least size alone", "PagingDrive=C:\r\nMinPagingFileSize=65536\r\n", 3, kC, "192", 192},
        Setup{"greatest size alone", "PagingDrive=C:\r\nMaxPagingFileSize=65536\r\n", 3, kC, "64", 64},
        Setup{"both 131072", "PagingDrive=C:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n", 2,
              kC, "128", 128},
        Setup{"both 100000", "PagingDrive=D:\r\nMinPagingFileSize=100000\r\nMaxPagingFileSize=100000\r\n", 3,
              kD, "97.65625", 98},
        Setup{"different sizes", "PagingDrive=C:\r\nMinPagingFileSize=65536\r\nMaxPagingFileSize=131072\r\n",
              3, kC, "128", 128},
        Setup{"least rounds to greatest",
              "PagingDrive=C:\r\nMinPagingFileSize=131100\r\nMaxPagingFileSize=131072\r\n", 2, kC, "128",
              128},
        Setup{"least rounds half to even",
              "PagingDrive=C:\r\nMinPagingFileSize=2560\r\nMaxPagingFileSize=2048\r\n", 2, kC, "2", 2},
        Setup{"drive in small letters",
              "PagingDrive=c:\r\nMinPagingFileSize=2048\r\nMaxPagingFileSize=2048\r\n", 2, "", "2", 2},
        Setup{"drive with a path",
              "PagingDrive=D:\\SWAP\r\nMinPagingFileSize=2048\r\nMaxPagingFileSize=2048\r\n", 2, kD, "2", 2},
        Setup{"drive that is not there", "PagingDrive=Z:\r\n", 3, "", "-10", 0},
        Setup{"drive empty", "PagingDrive=\r\n", 3, "", "-10", 0},
        Setup{"sizes empty", "PagingDrive=C:\r\nMinPagingFileSize=\r\nMaxPagingFileSize=\r\n", 2, kC, "0", 0},
        Setup{"sizes of one character", "PagingDrive=C:\r\nMinPagingFileSize=5\r\nMaxPagingFileSize=5\r\n", 3,
              kC, "192", 192},
        Setup{"garbage", "PagingDrive=C:\r\nMinPagingFileSize=lots\r\nMaxPagingFileSize=more\r\n", 2, kC, "0",
              0},
        Setup{"number with words",
              "PagingDrive=C:\r\nMinPagingFileSize=2048 KB\r\nMaxPagingFileSize=2048 KB\r\n", 2, kC, "2", 2},
        Setup{"negative", "PagingDrive=C:\r\nMinPagingFileSize=-2048\r\nMaxPagingFileSize=-2048\r\n", 2, kC,
              "-2", 0},
        Setup{"beyond the bar",
              "PagingDrive=C:\r\nMinPagingFileSize=102400000\r\nMaxPagingFileSize=102400000\r\n", 2, kC,
              "100000", 32750},
        Setup{"huge", "PagingDrive=C:\r\nMinPagingFileSize=1E300\r\nMaxPagingFileSize=1E300\r\n", 2, kC,
              "9.765625E+296", 32750}));

/// A machine without entries, with its memory and the free space on its drive in megabytes.
struct Machine {
  double ram_mb;
  double free_mb;
  std::string size;
  std::int32_t bar;
};

void PrintTo(const Machine& machine, std::ostream* out) {
  *out << machine.ram_mb << " MB, " << machine.free_mb << " MB free";
}

class ProposedSize : public testing::TestWithParam<Machine> {};

TEST_P(ProposedSize, ComesFromMemoryAndFreeSpace) {
  TuningRig rig(GetParam().ram_mb);
  rig.machine.AddDrive('C', {.total_bytes = FreeBytes(9000), .free_bytes = FreeBytes(GetParam().free_mb)});
  rig.StartAt(screens::kSwapFileTab);
  EXPECT_EQ(rig.program->SwapFileScreen().Text8.Text(), GetParam().size);
  EXPECT_EQ(rig.program->SwapFileScreen().VScroll4.Value(), GetParam().bar);
}

INSTANTIATE_TEST_SUITE_P(Table, ProposedSize,
                         testing::Values(Machine{8, 0, "-10", 0}, Machine{8, 0.5, "-10", 0},
                                         Machine{8, 0.6, "24", 24}, Machine{31.9, 2000, "95", 95},
                                         Machine{64, 1, "192", 192}, Machine{512, 1, "-9", 0},
                                         Machine{512, 1.5, "1536", 1536}, Machine{512, 2.5, "1536", 1536}));

class SwapTab : public testing::Test {
 protected:
  screens::SwapFileScreen& Tab() { return rig.program->SwapFileScreen(); }
  void Start() { rig.StartAt(screens::kSwapFileTab); }
  void StartOptimised() {
    rig.WriteSystemIni(
        "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=131072\r\nMaxPagingFileSize=131072\r\n");
    Start();
  }
  void TypeSize(const std::string& text) {
    Tab().Text8.SetFocus();
    Tab().Text8.SelectAll();
    Tab().Text8.TypeText(text);
  }

  TuningRig rig;
};

TEST_F(SwapTab, EntriesOfAnyLengthAreRead) {
  for (const std::size_t length :
       {std::size_t{254}, std::size_t{255}, std::size_t{256}, std::size_t{70000}}) {
    TuningRig any;
    const std::string digits(length, '9');
    any.WriteSystemIni("[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=" + digits +
                       "\r\nMaxPagingFileSize=" + digits + "\r\n");
    any.StartAt(screens::kSwapFileTab);
    EXPECT_EQ(any.program->SwapFileScreen().VScroll4.Value(), 32750) << length;
    EXPECT_EQ(any.program->SwapFileScreen().Text8.Text(), "9.765625E+250") << length;
  }
}

TEST_F(SwapTab, MachineWithoutAFixedDriveHasNoneToSelect) {
  TuningRig bare;
  bare.machine.AddDrive('C', {.type = 5});
  bare.StartAt(screens::kSwapFileTab);
  EXPECT_EQ(bare.program->SwapFileScreen().Combo3.Count(), 0);
  EXPECT_EQ(bare.program->SwapFileScreen().Text8.Text(), "-10");
  EXPECT_EQ(bare.program->SwapFileScreen().VScroll4.Value(), 0);
  EXPECT_TRUE(bare.machine.Boxes().empty());
}

TEST_F(SwapTab, ClassicQueryIsUsedIfTheSystemHasNoOther) {
  rig.machine.RemoveExtendedQuery();
  rig.machine.AddDrive('C', {.total_bytes = FreeBytes(1000), .free_bytes = FreeBytes(400)});
  rig.machine.AddDrive('D', {.total_bytes = std::uint64_t{1} << 31U, .free_bytes = FreeBytes(400)});
  Start();
  EXPECT_EQ(Tab().Combo3.Item(0), "C:\\ 400MB Free");
  EXPECT_EQ(Tab().Combo3.Item(1), "D:\\ 0MB Free");
}

TEST_F(SwapTab, OptionsEnableAndDisableTheSize) {
  Start();
  ExpectSizeControls(Tab(), false);
  Tab().optSwap2.Press();
  ExpectSizeControls(Tab(), true);
  Tab().optSwap3.Press();
  ExpectSizeControls(Tab(), true);
  Tab().optSwap1.Press();
  ExpectSizeControls(Tab(), false);
}

TEST_F(SwapTab, OnlyDigitsAndBackspaceAreTyped) {
  StartOptimised();
  TypeSize("2a0.0-\b5");
  EXPECT_EQ(Tab().Text8.Text(), "205");
}

TEST_F(SwapTab, LeavingTheSizeSetsTheBar) {
  StartOptimised();
  TypeSize("0300");
  EXPECT_EQ(Tab().VScroll4.Value(), 128);
  Tab().Combo3.SetFocus();
  EXPECT_EQ(Tab().Text8.Text(), "300");
  EXPECT_EQ(Tab().VScroll4.Value(), 300);
}

TEST_F(SwapTab, EmptySizeBecomesZero) {
  StartOptimised();
  TypeSize("\b");
  EXPECT_EQ(Tab().Text8.Text(), "");
  Tab().Combo3.SetFocus();
  EXPECT_EQ(Tab().Text8.Text(), "0");
  EXPECT_EQ(Tab().VScroll4.Value(), 0);
}

TEST_F(SwapTab, PastedFractionIsRoundedDown) {
  StartOptimised();
  Tab().Text8.SetFocus();
  Tab().Text8.UserEdited("97.99", 0, 0);
  Tab().Combo3.SetFocus();
  EXPECT_EQ(Tab().Text8.Text(), "97");
  EXPECT_EQ(Tab().VScroll4.Value(), 97);
}

TEST_F(SwapTab, AcceptedSizeLetsTheFocusGo) {
  StartOptimised();
  Tab().Text8.SetFocus();
  Tab().Text8.UserEdited("97", 0, 0);
  Tab().Combo3.SetFocus();
  EXPECT_TRUE(Tab().Combo3.HasFocus());
}

TEST_F(SwapTab, LargestSizeOfTheBarIsAccepted) {
  StartOptimised();
  TypeSize("32750");
  Tab().Combo3.SetFocus();
  EXPECT_EQ(Tab().VScroll4.Value(), 32750);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(SwapTab, SizeBeyondTheBarIsARunTimeError) {
  StartOptimised();
  TypeSize("32751");
  Tab().Combo3.SetFocus();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '380':\r\n\r\nInvalid property value");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(SwapTab, SizeBeyond32BitsIsAnOverflow) {
  StartOptimised();
  TypeSize("99999999999");
  Tab().Combo3.SetFocus();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '6':\r\n\r\nOverflow");
}

TEST_F(SwapTab, BarMovesBy5And10AndUpIsMore) {
  StartOptimised();
  Tab().VScroll4.Step(-1);
  EXPECT_EQ(Tab().Text8.Text(), "133");
  Tab().VScroll4.Page(-1);
  EXPECT_EQ(Tab().Text8.Text(), "143");
  Tab().VScroll4.Step(1);
  EXPECT_EQ(Tab().Text8.Text(), "138");
  EXPECT_EQ(Tab().VScroll4.Value(), 138);
}

TEST_F(SwapTab, BarDoesNotMoveWhileItIsDisabled) {
  Start();
  Tab().VScroll4.Step(-1);
  EXPECT_EQ(Tab().Text8.Text(), "192");
}

TEST_F(SwapTab, FractionOfAForeignSetupBecomesWholeWithTheFirstMove) {
  rig.WriteSystemIni(
      "[386Enh]\r\nPagingDrive=C:\r\nMinPagingFileSize=100000\r\nMaxPagingFileSize=100000\r\n");
  Start();
  Tab().optSwap2.Press();
  EXPECT_EQ(Tab().Text8.Text(), "97.65625");
  Tab().VScroll4.Step(-1);
  EXPECT_EQ(Tab().Text8.Text(), "103");
}

TEST_F(SwapTab, BarReachesFrom0To32750) {
  StartOptimised();
  EXPECT_EQ(Tab().VScroll4.Minimum(), 32750);
  EXPECT_EQ(Tab().VScroll4.Maximum(), 0);
}

TEST_F(SwapTab, TextsOfTheTab) {
  Start();
  EXPECT_EQ(Tab().optSwap1.Caption(), "Windows Default - Let Windows manage the Swapfile (Not Optimized)");
  EXPECT_EQ(Tab().optSwap2.Caption(), "Optimize Windows Virtual Memory Swapfile");
  EXPECT_EQ(Tab().optSwap3.Caption(), "Other setup currently configured (Not Optimized)");
  EXPECT_EQ(Tab().Frame11.Caption(), "Optimize Swapfile");
  EXPECT_EQ(Tab().lblHardDisk.Caption(), "Hard Disk :");
  EXPECT_EQ(Tab().lblSwapSize.Caption(), "Swapfile Size :");
  EXPECT_EQ(Tab().cmdBeginnerSwapFile.Caption(), "Suggested Configuration (Beginners)");
  EXPECT_EQ(Tab().Command18.Caption(), "Save Changes");
  EXPECT_EQ(Tab().lblRunDefrag.Caption(), "Run Defrag -->");
  EXPECT_EQ(Tab().Label35.Caption(),
            "It is a good idea to run a disk defragmentation and reboot before configuring your Swapfile "
            "settings.");
}

TEST_F(SwapTab, ViewingAndChoosingWritesNothing) {
  rig.WriteSystemIni("[386Enh]\r\nPagingDrive=C:\r\n");
  Start();
  const std::size_t before = rig.machine.Calls().size();
  Tab().optSwap2.Press();
  Tab().VScroll4.Step(-3);
  EXPECT_TRUE(rig.Changes(before).empty());
  EXPECT_EQ(rig.SystemIni(), "[386Enh]\r\nPagingDrive=C:\r\n");
}

}  // namespace
}  // namespace qdix::tests
