// Folders and programs on a drive without a disk: Windows would ask the user for the disk in a box of its
// own.
#include "tests/contract/win32/detour.h"
#include "tests/contract/win32/error_mode.h"

namespace qdix::contract {
namespace {

BOOL WINAPI RecordingSetCurrentDirectory(const char* /*folder*/) {
  ErrorModeTest::RecordMode();
  return FALSE;
}

DWORD WINAPI RecordingGetFileAttributes(const char* /*path*/) {
  ErrorModeTest::RecordMode();
  SetLastError(ERROR_NOT_READY);
  return INVALID_FILE_ATTRIBUTES;
}

BOOL WINAPI RecordedStart(const char* /*program*/, char* /*command_line*/, SECURITY_ATTRIBUTES* /*process*/,
                          SECURITY_ATTRIBUTES* /*thread*/, BOOL /*inherits*/, DWORD /*flags*/,
                          void* /*environment*/, const char* /*folder*/, STARTUPINFOA* /*startup*/,
                          PROCESS_INFORMATION* /*started*/) {
  ErrorModeTest::RecordMode();
  SetLastError(ERROR_FILE_NOT_FOUND);
  return FALSE;
}

class EmptyDriveWin32 : public ErrorModeTest {};

TEST_F(EmptyDriveWin32, FolderIsChangedWithoutAskingForADisk) {
  const Detour noted("SetCurrentDirectoryA", reinterpret_cast<const void*>(&RecordingSetCurrentDirectory));
  EXPECT_FALSE(system.processes.SetCurrentDirectoryA("E:"));
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(EmptyDriveWin32, FileIsSearchedForWithoutAskingForADisk) {
  const Detour noted("GetFileAttributesA", reinterpret_cast<const void*>(&RecordingGetFileAttributes));
  EXPECT_EQ(system.files.GetFileAttributesA("E:\\setup.exe"), os::kInvalidFileAttributes);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(EmptyDriveWin32, ProgramOnTheDriveIsNotStarted) {
  const Detour attributes("GetFileAttributesA", reinterpret_cast<const void*>(&RecordingGetFileAttributes));
  const Detour start("CreateProcessA", reinterpret_cast<const void*>(&RecordedStart));
  for (const char* const command_line : {"E:\\setup.exe", "\"E:\\Set up.exe\" /s", "  e:\\setup.exe -x"}) {
    EXPECT_EQ(system.processes.CreateProcessA(command_line), os::kErrorNotReady) << command_line;
    ExpectAskedQuietlyAndPutBack();
  }
}

TEST_F(EmptyDriveWin32, ProgramIsStartedInThePreviousMode) {
  const Detour start("CreateProcessA", reinterpret_cast<const void*>(&RecordedStart));
  for (const char* const command_line :
       {"C:\\windows\\qdix_none.exe", "qdix_none.exe", "Q:\\none.exe", "E", ""}) {
    ModeSeen() = 0;
    EXPECT_EQ(system.processes.CreateProcessA(command_line), os::kErrorFileNotFound) << command_line;
    EXPECT_EQ(ModeSeen(), kModeBefore) << command_line;
  }
}

}  // namespace
}  // namespace qdix::contract
