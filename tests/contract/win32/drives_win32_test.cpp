// Volume queries and the error mode of the process. Without the error mode Windows asks the user for a disk.
#include <tuple>

#include "tests/contract/win32/detour.h"
#include "tests/contract/win32/error_mode.h"
#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {
namespace {

BOOL WINAPI RecordingGetDiskFreeSpaceEx(const char* /*root*/, ULARGE_INTEGER* /*available*/,
                                        ULARGE_INTEGER* /*total*/, ULARGE_INTEGER* /*free*/) {
  ErrorModeTest::RecordMode();
  return FALSE;
}

BOOL WINAPI RecordingGetDiskFreeSpace(const char* /*root*/, DWORD* /*sectors*/, DWORD* /*bytes*/,
                                      DWORD* /*free*/, DWORD* /*total*/) {
  ErrorModeTest::RecordMode();
  return FALSE;
}

BOOL WINAPI RecordingGetVolumeInformation(const char* /*root*/, char* /*name*/, DWORD /*name_size*/,
                                          DWORD* /*serial*/, DWORD* /*longest*/, DWORD* /*flags*/,
                                          char* /*system*/, DWORD /*system_size*/) {
  ErrorModeTest::RecordMode();
  return FALSE;
}

class DrivesWin32 : public ErrorModeTest {
 protected:
  os::DiskBytes bytes;
  os::DiskClusters clusters;
  std::uint32_t flags = 0;
};

TEST_F(DrivesWin32, ExtendedQueryLetsTheSystemAskForNoDisk) {
  const Detour noted("GetDiskFreeSpaceExA", reinterpret_cast<const void*>(&RecordingGetDiskFreeSpaceEx));
  EXPECT_EQ(system.drives.GetDiskFreeSpaceExA("C:\\", bytes), 0);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(DrivesWin32, ClassicQueryLetsTheSystemAskForNoDisk) {
  const Detour noted("GetDiskFreeSpaceA", reinterpret_cast<const void*>(&RecordingGetDiskFreeSpace));
  EXPECT_EQ(system.drives.GetDiskFreeSpaceA("C:\\", clusters), 0);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(DrivesWin32, FileSystemQueryLetsTheSystemAskForNoDisk) {
  const Detour noted("GetVolumeInformationA", reinterpret_cast<const void*>(&RecordingGetVolumeInformation));
  EXPECT_EQ(system.drives.GetVolumeInformationA("C:\\", flags), 0);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(DrivesWin32, ModeIsRestoredAfterRealQueriesAndRefusedRoots) {
  for (const char* const root : {"C:\\", "Q:\\", "C:"}) {
    std::ignore = system.drives.GetDiskFreeSpaceExA(root, bytes);
    std::ignore = system.drives.GetDiskFreeSpaceA(root, clusters);
    std::ignore = system.drives.GetVolumeInformationA(root, flags);
    EXPECT_EQ(SetErrorMode(kModeBefore), kModeBefore) << root;
  }
}

}  // namespace
}  // namespace qdix::contract
