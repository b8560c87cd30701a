// Figures of the tuning tabs that are truncated where others are rounded, divided in a certain order, or
// compared first. They are worked out independently of the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/form_fixture.h"
#include "tests/support/tuning_rig.h"
#include "tuning/cache/cache_presets.h"

namespace qdix::tests {
namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

struct Share {
  double total_ram_mb;
  const char* preset;
  std::int32_t min_kb;
  std::int32_t max_kb;
};

void PrintTo(const Share& share, std::ostream* out) {
  *out << share.preset << " at " << share.total_ram_mb << " MB";
}

class SharesOfMemory : public testing::TestWithParam<Share> {};

/// A share such as 767.744 KB is truncated to 767 before it is rounded to a multiple of 512; 768 would round
/// up to the next one.
TEST_P(SharesOfMemory, AreTruncatedToWholeKilobytesFirst) {
  const auto values = tuning::FindCachePreset(GetParam().preset)->For(GetParam().total_ram_mb);
  ASSERT_TRUE(values.Ok());
  EXPECT_EQ(values.Value().min_cache_kb, GetParam().min_kb);
  EXPECT_EQ(values.Value().max_cache_kb, GetParam().max_kb);
}

INSTANTIATE_TEST_SUITE_P(Table, SharesOfMemory,
                         testing::Values(Share{5.998, "Standard System (Win95)", 512, 512},
                                         Share{39.47, "CD Writer (Win98/ME)", 3584, 3584},
                                         Share{45.83, "3D Games (Win98/ME)", 512, 2560},
                                         Share{56.45, "Standard System (Win98/ME)", 512, 8704},
                                         Share{58.33, "Multimedia (Win98/ME)", 1536, 5632},
                                         Share{61.11, "Low Memory System (Win98/ME)", 512, 2560}));

struct SliderEnd {
  std::uint32_t memory_bytes;
  std::int32_t largest_kb;
};

void PrintTo(const SliderEnd& end, std::ostream* out) { *out << end.memory_bytes << " bytes"; }

class SliderEnds : public testing::TestWithParam<SliderEnd> {};

/// 500 KB per 1,024,000 bytes: 2998.25, 2998.75, 2999.25 and 2999.75.
TEST_P(SliderEnds, AreRounded) {
  ProgramRig rig(GetParam().memory_bytes);
  rig.SetHasRunBefore();
  const screens::CacheScreen& tab = rig.Start().CacheScreen();
  EXPECT_EQ(tab.Slider1.Maximum(), GetParam().largest_kb);
  EXPECT_EQ(tab.Slider2.Maximum(), GetParam().largest_kb);
}

INSTANTIATE_TEST_SUITE_P(Bytes, SliderEnds,
                         testing::Values(SliderEnd{6140416, 2998}, SliderEnd{6141440, 2999},
                                         SliderEnd{6142464, 2999}, SliderEnd{6143488, 3000}));

/// Maximum and chunk are not set here, but their values equal those of the preset.
TEST(RecognisedPreset, DoesNotDependOnTheBoxesOfMaximumAndChunk) {
  TuningRig rig(5.998);
  using std::string_literals::operator""s;
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kOwnTemplatePath, "NameCache", os::kRegBinary,
                               "\x00\x08\x00\x00"s);
  rig.machine.SetRegistryBytes(os::kHkeyLocalMachine, kOwnTemplatePath, "PathCache", os::kRegBinary,
                               "\x40\x00\x00\x00"s);
  const screens::CacheScreen& tab = rig.StartAt(screens::kCacheTab).CacheScreen();
  EXPECT_FALSE(tab.Check6.Ticked());
  EXPECT_FALSE(tab.Check7.Ticked());
  EXPECT_EQ(tab.Combo2.Text(), "Standard System (Win95)");
}

/// 44,032,000 bytes are exactly 43 megabytes of memory, but slightly less of free space, which is divided in
/// a different order.
TEST(Megabytes, AreDividedInTheOrderOfTheirKind) {
  TuningRig rig;
  rig.machine.SetMemory(44032000, 22016000, 44032000, 22016000);
  rig.machine.AddDrive('C', {.total_bytes = FreeBytes(4000), .free_bytes = 44032000});
  rig.StartAt(screens::kSwapFileTab);
  EXPECT_EQ(rig.program->SwapFileScreen().Combo3.Item(0), "C:\\ 42MB Free");
  EXPECT_EQ(rig.program->MemoryMonitor().TotalRAM(), 43.0);
  EXPECT_EQ(rig.program->SwapFileScreen().Text8.Text(), "129");
}

struct Room {
  double free_mb;
  bool is_enough;
};

void PrintTo(const Room& room, std::ostream* out) { *out << room.free_mb << " MB free"; }

class SuggestionRoom : public testing::TestWithParam<Room> {};

/// With 64 MB the size is 192, and more than 292 MB must be free, after rounding half to even.
TEST_P(SuggestionRoom, IsTheRoundedFreeSpace) {
  TuningRig rig;
  rig.machine.AddDrive('C', {.total_bytes = FreeBytes(4000), .free_bytes = FreeBytes(GetParam().free_mb)});
  rig.StartAt(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap2.Press();
  rig.program->SwapFileScreen().cmdBeginnerSwapFile.Press();
  ASSERT_EQ(rig.BoxTexts().size(), 1U);
  EXPECT_THAT(rig.BoxTexts()[0],
              testing::StartsWith(GetParam().is_enough ? "Quondix suggests configuring your swapfile"
                                                       : "Quondix suggests you leave your virtual memory"));
  EXPECT_EQ(rig.program->SwapFileScreen().optSwap2.Selected(), GetParam().is_enough);
}

INSTANTIATE_TEST_SUITE_P(Megabytes, SuggestionRoom,
                         testing::Values(Room{292.4, false}, Room{292.5, false}, Room{292.6, true},
                                         Room{293.4, true}));

/// 10 MB are less than the memory, and 10 + 19 are also more than the 20 MB free.
TEST(SwapSizeThatIsRefusedTwice, IsReportedAsTooLow) {
  TuningRig rig;
  rig.machine.AddDrive('C', {.total_bytes = FreeBytes(4000), .free_bytes = FreeBytes(20)});
  rig.StartAt(screens::kSwapFileTab);
  rig.program->SwapFileScreen().optSwap2.Press();
  rig.program->SwapFileScreen().Text8.SetText("10");
  rig.program->SwapFileScreen().Command18.Press();
  EXPECT_THAT(rig.BoxTexts(),
              ElementsAre("It is not very safe to set the swapfile size this low. The lowest Quondix will "
                          "allow you to set on this system is 64 MB."));
}

struct PagingEntry {
  const char* entry;
  bool is_on;
};

void PrintTo(const PagingEntry& paging, std::ostream* out) { *out << paging.entry; }

class PagingEntries : public testing::TestWithParam<PagingEntry> {};

/// Blanks inside quotation marks are part of what the system reads, and do not count.
TEST_P(PagingEntries, AreTrimmedAndComparedWithCase) {
  TuningRig rig;
  rig.WriteSystemIni(std::string("[386Enh]\r\n") + GetParam().entry + "\r\n");
  const screens::SwapFileScreen& tab = rig.StartAt(screens::kSwapFileTab).SwapFileScreen();
  EXPECT_EQ(tab.optSwap1.Selected(), GetParam().is_on);
  EXPECT_EQ(tab.optSwap3.Selected(), !GetParam().is_on);
}

INSTANTIATE_TEST_SUITE_P(Texts, PagingEntries,
                         testing::Values(PagingEntry{"Paging=\" on\"", true},
                                         PagingEntry{"Paging=\"  only\"", true},
                                         PagingEntry{"Paging=\" On\"", false},
                                         PagingEntry{"Paging=\" off \"", false},
                                         PagingEntry{"Paging=x", true}));

/// Drives whose roots are reported in small letters, one of them longer than a root. The user may use less
/// than the free space.
class OddDrives final : public os::Drives {
 public:
  std::int32_t GetDiskFreeSpaceExA(const char* /*root*/, os::DiskBytes& bytes) override {
    bytes = {.available = 102400000, .total = 1024000000, .total_free = 512000000};
    return 1;
  }
  std::int32_t GetDiskFreeSpaceA(const char* /*root*/, os::DiskClusters& /*clusters*/) override { return 0; }
  std::uint32_t GetDriveTypeA(const char* root) override {
    asked.emplace_back(root);
    return removable ? 2 : os::kDriveFixed;
  }
  std::uint32_t GetLogicalDriveStringsA(std::uint32_t /*room*/, char* buffer) override {
    constexpr std::string_view kRoots("c:\\\0d:\\folder\0\0", 15);
    std::copy(kRoots.begin(), kRoots.end(), buffer);
    return kRoots.size() - 1;
  }
  std::int32_t GetVolumeInformationA(const char* /*root*/, std::uint32_t& flags) override {
    flags = 0;
    return 1;
  }

  Texts asked;
  bool removable = false;
};

TEST(DriveFigures, RootsAreCutToThreeCapitalsAndShowTheTotalFreeSpace) {
  OddDrives drives;
  tuning::DriveInfo info(drives);
  info.SetUseDiskFreeSpaceEx(true);
  FormFixture fixture;
  ui::DropDownList list(fixture.form, {.name = "list"});
  info.FillDriveCombo(list);
  EXPECT_THAT(drives.asked, ElementsAre("C:\\", "D:\\"));
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Item(0), "C:\\ 500MB Free");
  EXPECT_EQ(list.Item(1), "D:\\ 500MB Free");
}

TEST(DriveFigures, FreeAvailableUsedAndTotalAreFourFigures) {
  OddDrives drives;
  tuning::DriveInfo info(drives);
  info.SetUseDiskFreeSpaceEx(true);
  tuning::DriveSpaceInfo space;
  ASSERT_EQ(info.GetDiskSpace("C:\\", space), 1);
  EXPECT_EQ(space.available_bytes, 102400000);
  EXPECT_EQ(space.free_bytes, 512000000);
  EXPECT_EQ(space.used_bytes, 512000000);
  EXPECT_EQ(space.total_bytes, 1024000000);
}

TEST(DriveFigures, FloppyDrivesAreAAndBInSmallLetters) {
  OddDrives drives;
  drives.removable = true;
  tuning::DriveInfo info(drives);
  Texts told;
  for (const char* const root : {"a:\\", "b:\\", "c:\\", "A:\\", "B:\\"}) {
    told.push_back(info.GetDriveTypeText(root));
  }
  EXPECT_THAT(told, ElementsAre("Floppy drive.", "Floppy drive.", "Removable drive.", "Removable drive.",
                                "Removable drive."));
}

}  // namespace
}  // namespace qdix::tests
