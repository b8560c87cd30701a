// Questions about a volume and the error mode of the process: without it Windows asks the user for a disk.
#include <windows.h>

#include <array>
#include <cstring>
#include <tuple>

#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {
namespace {

/// A function of the system that leads to another one of the same parameters for as long as this lives.
class Detour {
 public:
  Detour(const char* function, const void* replacement)
      : place_(reinterpret_cast<char*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), function))) {
    std::memcpy(former_.data(), place_, former_.size());
    const auto distance =
        static_cast<std::int32_t>(static_cast<const char*>(replacement) - (place_ + former_.size()));
    std::array<char, kJumpBytes> jump{'\xE9'};
    std::memcpy(jump.data() + 1, &distance, sizeof distance);
    Write(jump);
  }
  Detour(const Detour&) = delete;
  Detour& operator=(const Detour&) = delete;
  ~Detour() { Write(former_); }

 private:
  static constexpr std::size_t kJumpBytes = 5;

  void Write(const std::array<char, kJumpBytes>& code) {
    DWORD protection = 0;
    ASSERT_TRUE(VirtualProtect(place_, code.size(), PAGE_EXECUTE_READWRITE, &protection));
    std::memcpy(place_, code.data(), code.size());
    VirtualProtect(place_, code.size(), protection, &protection);
    FlushInstructionCache(GetCurrentProcess(), place_, code.size());
  }

  char* place_;
  std::array<char, kJumpBytes> former_{};
};

/// The error mode during the latest question that was led astray.
UINT& ModeSeen() {
  static UINT mode = 0;
  return mode;
}

void NoteMode() {
  ModeSeen() = SetErrorMode(0);
  SetErrorMode(ModeSeen());
}

BOOL WINAPI NotedFreeSpaceEx(const char* /*root*/, ULARGE_INTEGER* /*available*/, ULARGE_INTEGER* /*total*/,
                             ULARGE_INTEGER* /*free*/) {
  NoteMode();
  return FALSE;
}

BOOL WINAPI NotedFreeSpace(const char* /*root*/, DWORD* /*sectors*/, DWORD* /*bytes*/, DWORD* /*free*/,
                           DWORD* /*total*/) {
  NoteMode();
  return FALSE;
}

BOOL WINAPI NotedVolume(const char* /*root*/, char* /*name*/, DWORD /*name_size*/, DWORD* /*serial*/,
                        DWORD* /*longest*/, DWORD* /*flags*/, char* /*system*/, DWORD /*system_size*/) {
  NoteMode();
  return FALSE;
}

constexpr UINT kModeBefore = SEM_NOGPFAULTERRORBOX;

class DrivesWin32 : public ContractTest {
 protected:
  DrivesWin32() : former_(SetErrorMode(kModeBefore)) { ModeSeen() = 0; }
  ~DrivesWin32() override { SetErrorMode(former_); }

  static void ExpectAskedQuietlyAndPutBack() {
    EXPECT_EQ(ModeSeen(), static_cast<UINT>(SEM_FAILCRITICALERRORS));
    EXPECT_EQ(SetErrorMode(kModeBefore), kModeBefore) << "programs that are started inherit the mode";
  }

  os::DiskBytes bytes;
  os::DiskClusters clusters;
  std::uint32_t flags = 0;

 private:
  UINT former_;
};

TEST_F(DrivesWin32, ExtendedQueryLetsTheSystemAskForNoDisk) {
  const Detour noted("GetDiskFreeSpaceExA", reinterpret_cast<const void*>(&NotedFreeSpaceEx));
  EXPECT_EQ(system.drives.GetDiskFreeSpaceExA("C:\\", bytes), 0);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(DrivesWin32, ClassicQueryLetsTheSystemAskForNoDisk) {
  const Detour noted("GetDiskFreeSpaceA", reinterpret_cast<const void*>(&NotedFreeSpace));
  EXPECT_EQ(system.drives.GetDiskFreeSpaceA("C:\\", clusters), 0);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(DrivesWin32, QuestionForTheFileSystemLetsTheSystemAskForNoDisk) {
  const Detour noted("GetVolumeInformationA", reinterpret_cast<const void*>(&NotedVolume));
  EXPECT_EQ(system.drives.GetVolumeInformationA("C:\\", flags), 0);
  ExpectAskedQuietlyAndPutBack();
}

TEST_F(DrivesWin32, ModeIsPutBackAfterRealQuestionsAndRefusedRoots) {
  for (const char* const root : {"C:\\", "Q:\\", "C:"}) {
    std::ignore = system.drives.GetDiskFreeSpaceExA(root, bytes);
    std::ignore = system.drives.GetDiskFreeSpaceA(root, clusters);
    std::ignore = system.drives.GetVolumeInformationA(root, flags);
    EXPECT_EQ(SetErrorMode(kModeBefore), kModeBefore) << root;
  }
}

}  // namespace
}  // namespace qdix::contract
