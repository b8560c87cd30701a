#include "tests/e2e/driver/process_resources.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/process_parameters.h"

namespace qdix::e2e {

namespace {

constexpr int kNotCounted = -1;

int CountWindows(DWORD process_id) {
  std::size_t count = 0;
  for (const HWND window : TopLevelWindows(process_id)) count += 1 + WindowsInside(window).size();
  return static_cast<int>(count);
}

/// Wine does not support the documented call for counting drawing objects. But the process contains their
/// table, and its environment block points to it.
int CountDrawingObjects(HANDLE process) {
  constexpr std::uintptr_t kTableOffset = 0x94;
  struct Entry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t generation;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t user_data;
  };
  static_assert(sizeof(Entry) == 24);

  std::uintptr_t table = 0;
  const std::uintptr_t place = EnvironmentBlock(process) + kTableOffset;
  if (ReadProcessMemory(process, reinterpret_cast<void*>(place), &table, sizeof table, nullptr) == 0) {
    return kNotCounted;
  }
  std::vector<Entry> entries(0x4000);
  if (ReadProcessMemory(process, reinterpret_cast<void*>(table), entries.data(),
                        entries.size() * sizeof(Entry), nullptr) == 0) {
    return kNotCounted;
  }
  return static_cast<int>(
      std::count_if(entries.begin(), entries.end(), [](const Entry& entry) { return entry.type != 0; }));
}

/// Reads the system's list of all handles of all processes.
int CountHandles(DWORD process_id) {
  using QuerySystem = LONG(WINAPI*)(int, void*, ULONG, ULONG*);
  constexpr int kHandleInformation = 16;
  constexpr std::size_t kMaxHandles = 100000;
  struct Entry {
    std::uint32_t process_id;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint16_t handle;
    std::uint32_t object;
    std::uint32_t access;
  };
  struct Table {
    std::uint32_t count;
    std::array<Entry, kMaxHandles> entries;
  };

  std::vector<Table> table(1);
  // Undocumented and not in the headers.
  const FARPROC found = GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQuerySystemInformation");
  const auto query = reinterpret_cast<QuerySystem>(reinterpret_cast<void*>(found));
  if (query(kHandleInformation, table.data(), sizeof(Table), nullptr) != 0) {
    return kNotCounted;
  }
  const Table& handles = table.front();
  return static_cast<int>(
      std::count_if(handles.entries.begin(), handles.entries.begin() + handles.count,
                    [process_id](const Entry& entry) { return entry.process_id == process_id; }));
}

}  // namespace

ProcessResources CountResources(HANDLE process, DWORD process_id) {
  return {.windows = CountWindows(process_id),
          .drawing_objects = CountDrawingObjects(process),
          .handles = CountHandles(process_id)};
}

}  // namespace qdix::e2e
