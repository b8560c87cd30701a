// Drives: the list, and the drive that Windows is installed on.
#include <array>

#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

constexpr const char* kSystemRoot = "C:\\";

using DrivesContract = ContractTest;

TEST_F(DrivesContract, ListHasTheSystemDriveAndEndsWithTwoNuls) {
  std::array<char, 128> buffer{};
  buffer.fill('x');
  const std::uint32_t length = system.drives.GetLogicalDriveStringsA(buffer.size(), buffer.data());
  ASSERT_GT(length, 3U);
  ASSERT_LT(length, buffer.size());
  const std::string list(buffer.data(), length + 1);
  EXPECT_NE(list.find(kSystemRoot), std::string::npos);
  EXPECT_EQ(list.substr(length - 1), std::string(2, '\0'));
}

TEST_F(DrivesContract, ListThatDoesNotFitReturnsTheSizeAndWritesNothing) {
  std::array<char, 128> buffer{};
  const std::uint32_t length = system.drives.GetLogicalDriveStringsA(buffer.size(), buffer.data());
  std::array<char, 2> small{'x', 'x'};
  EXPECT_EQ(system.drives.GetLogicalDriveStringsA(small.size(), small.data()), length + 1);
  EXPECT_EQ(small[0], 'x');
}

TEST_F(DrivesContract, SystemDriveIsFixedAndAnUnknownRootIsNoDrive) {
  EXPECT_EQ(system.drives.GetDriveTypeA(kSystemRoot), os::kDriveFixed);
  EXPECT_EQ(system.drives.GetDriveTypeA("Q:\\"), 1U);
}

TEST_F(DrivesContract, BothQueriesKnowTheSystemDriveAndNotAnUnknownOne) {
  os::DiskBytes bytes;
  ASSERT_EQ(system.drives.GetDiskFreeSpaceExA(kSystemRoot, bytes), 1);
  EXPECT_GT(bytes.total, 0U);
  EXPECT_LE(bytes.total_free, bytes.total);
  os::DiskClusters clusters;
  ASSERT_EQ(system.drives.GetDiskFreeSpaceA(kSystemRoot, clusters), 1);
  EXPECT_GT(clusters.bytes_per_sector, 0U);
  EXPECT_GT(clusters.total_clusters, 0U);
  EXPECT_EQ(system.drives.GetDiskFreeSpaceExA("Q:\\", bytes), 0);
  EXPECT_EQ(system.drives.GetDiskFreeSpaceA("Q:\\", clusters), 0);
}

TEST_F(DrivesContract, RootWithoutItsBackslashIsRefusedByBothQueries) {
  os::DiskBytes bytes;
  os::DiskClusters clusters;
  EXPECT_EQ(system.drives.GetDiskFreeSpaceExA("C:", bytes), 0);
  EXPECT_EQ(system.drives.GetDiskFreeSpaceA("C:", clusters), 0);
}

TEST_F(DrivesContract, VolumeOfTheSystemDriveCanBeQueried) {
  std::uint32_t flags = 0xFFFFFFFFU;
  EXPECT_EQ(system.drives.GetVolumeInformationA(kSystemRoot, flags), 1);
  EXPECT_NE(flags, 0xFFFFFFFFU);
  EXPECT_EQ(system.drives.GetVolumeInformationA("Q:\\", flags), 0);
}

}  // namespace
}  // namespace qdix::contract
