// The machine's drives and their free space.
#include "tuning/swap/drive_info.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"
#include "tests/support/form_fixture.h"

namespace qdix::tests {
namespace {

using Texts = std::vector<std::string>;
constexpr std::uint64_t kGigabyte = 1024 * 1024 * 1024;

class DriveInfo : public testing::Test {
 protected:
  [[nodiscard]] Texts Listed() {
    info.FillDriveCombo(list);
    Texts items;
    for (int index = 0; index < list.Count(); ++index) items.push_back(list.Item(index));
    return items;
  }
  void AddFixed(char letter, std::uint64_t free_bytes, std::uint64_t total_bytes = kGigabyte) {
    machine.AddDrive(letter, {.total_bytes = total_bytes, .free_bytes = free_bytes});
  }

  os::SimulatedMachine machine;
  tuning::DriveInfo info{machine.GetSystem().drives};
  FormFixture fixture;
  ui::DropDownList list{fixture.form, {.name = "list"}};
};

TEST_F(DriveInfo, ExtendedQueryIsProbedOnDriveC) {
  AddFixed('C', 0);
  EXPECT_TRUE(info.HasDiskFreeSpaceEx());
  EXPECT_EQ(machine.Calls(), Texts{"GetDiskFreeSpaceExA(C:\\)"});
  machine.RemoveExtendedQuery();
  EXPECT_FALSE(info.HasDiskFreeSpaceEx());
}

TEST_F(DriveInfo, ListEndsAfterTheLastDrive) {
  AddFixed('C', 0);
  AddFixed('D', 0);
  EXPECT_EQ(Listed().size(), 2U);
  Texts asked;
  for (const std::string& call : machine.Calls()) {
    if (call.starts_with("GetDriveTypeA")) asked.push_back(call);
  }
  EXPECT_EQ(asked, (Texts{"GetDriveTypeA(C:\\)", "GetDriveTypeA(D:\\)"}));
}

TEST_F(DriveInfo, ExtendedQueryReturnsByteCountsOfAnySize) {
  AddFixed('D', 3 * kGigabyte + 1, 40 * kGigabyte);
  info.SetUseDiskFreeSpaceEx(true);
  tuning::DriveSpaceInfo space;
  EXPECT_EQ(info.GetDiskSpace("D:", space), 1);
  EXPECT_EQ(space.free_bytes, 3221225473);
  EXPECT_EQ(space.available_bytes, 3221225473);
  EXPECT_EQ(space.total_bytes, 42949672960);
  EXPECT_EQ(space.used_bytes, 39728447487);
  EXPECT_EQ(space.sectors_per_cluster, 0);
}

TEST_F(DriveInfo, BothQueriesAskForTheRootWithItsBackslash) {
  AddFixed('D', 4096 * 100, 4096 * 1000);
  tuning::DriveSpaceInfo space;
  for (const char* const root : {"D:", "D:\\"}) EXPECT_EQ(info.GetDiskSpace(root, space), 1) << root;
  info.SetUseDiskFreeSpaceEx(true);
  for (const char* const root : {"D:", "D:\\"}) EXPECT_EQ(info.GetDiskSpace(root, space), 1) << root;
  EXPECT_EQ(machine.Calls(), (Texts{"GetDiskFreeSpaceA(D:\\)", "GetDiskFreeSpaceA(D:\\)",
                                    "GetDiskFreeSpaceExA(D:\\)", "GetDiskFreeSpaceExA(D:\\)"}));
  EXPECT_EQ(space.free_bytes, 409600);
}

TEST_F(DriveInfo, ClassicQueryMultipliesItsFigures) {
  AddFixed('C', 4096 * 100, 4096 * 1000);
  tuning::DriveSpaceInfo space;
  EXPECT_EQ(info.GetDiskSpace("C:\\", space), 1);
  EXPECT_EQ(space.sectors_per_cluster, 8);
  EXPECT_EQ(space.bytes_per_sector, 512);
  EXPECT_EQ(space.free_clusters, 100);
  EXPECT_EQ(space.total_clusters, 1000);
  EXPECT_EQ(space.free_bytes, 409600);
  EXPECT_EQ(space.available_bytes, 409600);
  EXPECT_EQ(space.total_bytes, 4096000);
  EXPECT_EQ(space.used_bytes, 3686400);
}

TEST_F(DriveInfo, VolumeOf2GigabytesOverflowsTheClassicQuery) {
  AddFixed('C', 1000, 2 * kGigabyte);
  tuning::DriveSpaceInfo space;
  EXPECT_EQ(info.GetDiskSpace("C:\\", space), 0);
  EXPECT_EQ(space.total_clusters, 524288) << "the record is filled up to the overflow";
  EXPECT_EQ(space.total_bytes, 0);
  AddFixed('C', 1000, 2 * kGigabyte - 4096);
  EXPECT_EQ(info.GetDiskSpace("C:\\", space), 1);
}

/// A driver that reports arbitrary figures.
class FakeDrives final : public os::Drives {
 public:
  explicit FakeDrives(const os::DiskClusters& figures) : figures_(figures) {}
  std::int32_t GetDiskFreeSpaceExA(const char* /*root*/, os::DiskBytes& /*bytes*/) override { return 0; }
  std::int32_t GetDiskFreeSpaceA(const char* /*root*/, os::DiskClusters& clusters) override {
    clusters = figures_;
    return 1;
  }
  std::uint32_t GetDriveTypeA(const char* /*root*/) override { return os::kDriveFixed; }
  std::uint32_t GetLogicalDriveStringsA(std::uint32_t /*room*/, char* /*buffer*/) override { return 0; }
  std::int32_t GetVolumeInformationA(const char* /*root*/, std::uint32_t& /*flags*/) override { return 0; }

 private:
  os::DiskClusters figures_;
};

TEST(DriveInfoOfAnyDriver, EachProductMayOverflowAndSkipsTheRest) {
  const auto space_of = [](const os::DiskClusters& figures, std::int32_t result) {
    FakeDrives drives(figures);
    tuning::DriveInfo info(drives);
    tuning::DriveSpaceInfo space;
    EXPECT_EQ(info.GetDiskSpace("C:\\", space), result);
    EXPECT_EQ(space.total_clusters, static_cast<std::int32_t>(figures.total_clusters));
    return std::vector<std::int64_t>{space.total_bytes, space.free_bytes, space.available_bytes,
                                     space.used_bytes};
  };
  using Bytes = std::vector<std::int64_t>;
  EXPECT_EQ(space_of({65536, 65536, 1, 2}, 0), (Bytes{0, 0, 0, 0}));
  EXPECT_EQ(space_of({65536, 65536, 0, 0}, 0), (Bytes{0, 0, 0, 0}));
  EXPECT_EQ(space_of({65536, 16384, 1, 2}, 0), (Bytes{0, 0, 0, 0}));
  EXPECT_EQ(space_of({65536, 16384, 2, 1}, 0), (Bytes{1073741824, 0, 0, 0}));
  EXPECT_EQ(space_of({65536, 16384, 1, 1}, 1), (Bytes{1073741824, 1073741824, 1073741824, 0}));
}

TEST_F(DriveInfo, FailedQueriesReturnNothing) {
  tuning::DriveSpaceInfo space;
  EXPECT_EQ(info.GetDiskSpace("Q:\\", space), 0);
  info.SetUseDiskFreeSpaceEx(true);
  EXPECT_EQ(info.GetDiskSpace("Q:\\", space), 0);
  EXPECT_EQ(space.free_bytes, 0);
}

struct TypeText {
  std::uint32_t type;
  const char* root;
  const char* text;
};
class DriveTypeText : public DriveInfo, public testing::WithParamInterface<TypeText> {};
TEST_P(DriveTypeText, IsTheSentenceOfItsCode) {
  machine.AddDrive('A', {.type = GetParam().type});
  machine.AddDrive('D', {.type = GetParam().type});
  EXPECT_EQ(info.GetDriveTypeText(GetParam().root), GetParam().text);
}
INSTANTIATE_TEST_SUITE_P(Codes, DriveTypeText,
                         testing::Values(TypeText{0, "D:\\", "The drive type cannot be determined."},
                                         TypeText{1, "D:\\", "The root directory does not exist."},
                                         TypeText{2, "a:\\", "Floppy drive."},
                                         TypeText{2, "A:\\", "Removable drive."},
                                         TypeText{2, "d:\\", "Removable drive."},
                                         TypeText{3, "D:\\", "Hard drive; can not be removed."},
                                         TypeText{4, "D:\\", "Remote (network) drive."},
                                         TypeText{5, "D:\\", "CD-ROM drive."},
                                         TypeText{6, "D:\\", "RAM disk."}, TypeText{7, "D:\\", ""},
                                         TypeText{3, "a:\\", "Hard drive; can not be removed."}));

TEST_F(DriveInfo, StripNullCutsPieceByPiece) {
  std::string text("ab\0cd\0\0", 7);
  EXPECT_EQ(tuning::DriveInfo::StripNull(text), "ab");
  EXPECT_EQ(tuning::DriveInfo::StripNull(text), "cd");
  EXPECT_EQ(text, std::string(1, '\0'));
  EXPECT_EQ(tuning::DriveInfo::StripNull(text), "");
  EXPECT_EQ(text, "");
}

TEST_F(DriveInfo, StripNullWithoutANulReturnsNothingAndKeepsTheText) {
  std::string text = "abc";
  EXPECT_EQ(tuning::DriveInfo::StripNull(text), "");
  EXPECT_EQ(text, "abc");
}

TEST_F(DriveInfo, ListKeepsTheNulsOfTheSystem) {
  AddFixed('C', 0);
  AddFixed('D', 0);
  EXPECT_EQ(info.GetDriveList(), std::string("C:\\\0D:\\\0\0", 9));
}

TEST_F(DriveInfo, ListThatDoesNotFitIsEmpty) {
  for (char letter = 'A'; letter <= 'S'; ++letter) AddFixed(letter, 0);
  EXPECT_EQ(info.GetDriveList().size(), 77U);
  AddFixed('T', 0);
  EXPECT_EQ(info.GetDriveList(), "");
  EXPECT_EQ(machine.Calls().back(), "GetLogicalDriveStringsA(78)");
  EXPECT_EQ(Listed(), Texts{});
}

TEST_F(DriveInfo, FailedListIsEmptyAfterAllItsPasses) {
  machine.FailNextCall("GetLogicalDriveStringsA");
  EXPECT_EQ(Listed(), Texts{});
  EXPECT_EQ(std::count(machine.Calls().begin(), machine.Calls().end(), "GetDriveTypeA()"), 27);
}

TEST_F(DriveInfo, FixedDrivesAreListedWithTheirFreeSpaceRoundedDown) {
  info.SetUseDiskFreeSpaceEx(true);
  machine.AddDrive('A', {.type = 2});
  AddFixed('C', 1263616000);  // 1,234 megabytes of 1,024,000 bytes
  AddFixed('D', 1024999);
  AddFixed('E', 1023999);
  machine.AddDrive('F', {.type = 5});
  EXPECT_EQ(Listed(), (Texts{"C:\\ 1234MB Free", "D:\\ 1MB Free", "E:\\ 0MB Free"}));
  EXPECT_EQ(Listed().size(), 3U) << "the list is refilled, not extended";
}

TEST_F(DriveInfo, UnreadableVolumeIsListedAsItsBareRoot) {
  machine.AddDrive('D', {.total_bytes = kGigabyte, .free_bytes = kGigabyte, .flags = std::nullopt});
  EXPECT_EQ(Listed(), Texts{"D:\\"});
}

TEST_F(DriveInfo, FailedSpaceQueryShowsNoFreeSpaceInsteadOfThePreviousDrives) {
  AddFixed('C', 512000000);
  AddFixed('D', 512000000, 4 * kGigabyte);
  EXPECT_EQ(Listed(), (Texts{"C:\\ 500MB Free", "D:\\ 0MB Free"}));
}

TEST_F(DriveInfo, CompressedVolumesAreLeftOut) {
  machine.AddDrive('C', {.total_bytes = kGigabyte, .flags = 32767U});
  machine.AddDrive('D', {.total_bytes = kGigabyte, .flags = 32768U});
  EXPECT_EQ(Listed(), Texts{"C:\\ 0MB Free"});
}

}  // namespace
}  // namespace qdix::tests
