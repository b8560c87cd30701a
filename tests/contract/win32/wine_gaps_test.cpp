// Where Wine behaves differently from a Windows version that the program also runs on. Each test expects
// Wine's present behaviour and fails when that changes; then its check belongs in the common contract.
#include <windows.h>

#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using WineGaps = ContractTest;

/// The memory status with 64-bit fields. Windows 95 has no such call and its headers do not declare it. Here
/// it returns what the machine under Wine really has.
struct WideMemoryStatus {
  DWORD length = sizeof(WideMemoryStatus);
  DWORD memory_load_percent = 0;
  ULONGLONG total_physical = 0;
  ULONGLONG available_physical = 0;
  ULONGLONG total_page_file = 0;
  ULONGLONG available_page_file = 0;
  ULONGLONG total_virtual = 0;
  ULONGLONG available_virtual = 0;
  ULONGLONG available_extended_virtual = 0;
};

WideMemoryStatus ReadWideMemoryStatus() {
  using Function = BOOL(WINAPI*)(WideMemoryStatus*);
  WideMemoryStatus status;
  const auto read = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "GlobalMemoryStatusEx")));
  EXPECT_TRUE(read != nullptr && read(&status));
  return status;
}

// On a machine whose page file needs more than 32 bits, the total is clipped lower than the available amount.
TEST_F(WineGaps, LargePageFileHasMoreAvailableThanItsTotal) {
  constexpr ULONGLONG kLargest = 0xFFFFFFFFU;
  const WideMemoryStatus wide = ReadWideMemoryStatus();
  const os::MemoryStatus status = system.memory.GlobalMemoryStatus();
  if (wide.available_page_file > kLargest) {
    EXPECT_GT(status.available_page_file, status.total_page_file);
  } else {
    EXPECT_LE(status.available_page_file, status.total_page_file);
  }
}

// Wine does not check the access rights requested when a key is opened. Neither does Windows 95; the NT line
// does.
TEST_F(WineGaps, KeyOpenedForReadingCanBeWritten) {
  constexpr const char* kKey = "Software\\QDIX contract tests";
  os::KeyHandle key = 0;
  ASSERT_EQ(system.registry.RegCreateKeyExA(os::kHkeyCurrentUser, kKey, os::kKeyQueryValue, key),
            os::kErrorSuccess);
  const std::uint8_t byte = 1;
  EXPECT_EQ(system.registry.RegSetValueExA(key, "Name", os::kRegBinary, &byte, 1), os::kErrorSuccess);
  EXPECT_EQ(system.registry.RegCloseKey(key), os::kErrorSuccess);
  machine->DeleteRegistryTree(os::kHkeyCurrentUser, kKey);
}

// A box whose owner is gone returns the failure code of the dialog inside it instead of 0.
TEST_F(WineGaps, MessageBoxThatFailsGivesMinusOne) {
  const os::WindowHandle closed = machine->OpenWindow("QdixContractMain", "Main");
  machine->CloseWindow(closed);
  EXPECT_EQ(::MessageBoxA(reinterpret_cast<HWND>(closed), "Text", "Title", MB_OK), -1);
}

}  // namespace
}  // namespace qdix::contract
