#include "os/win32/win32_memory.h"

#include <windows.h>

namespace qdix::os::win32 {

MemoryStatus Win32Memory::GlobalMemoryStatus() {
  static_assert(sizeof(MEMORYSTATUS) == 32);
  MEMORYSTATUS record = {};
  record.dwLength = sizeof record;
  ::GlobalMemoryStatus(&record);
  return {.length = record.dwLength,
          .memory_load_percent = record.dwMemoryLoad,
          .total_physical = record.dwTotalPhys,
          .available_physical = record.dwAvailPhys,
          .total_page_file = record.dwTotalPageFile,
          .available_page_file = record.dwAvailPageFile,
          .total_virtual = record.dwTotalVirtual,
          .available_virtual = record.dwAvailVirtual};
}

void* Win32Memory::VirtualAlloc(std::uint32_t bytes) {
  return ::VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

/// A committed page uses memory only after the first write.
void Win32Memory::TouchPages(void* block, std::uint32_t bytes) {
  auto* const first = static_cast<volatile std::uint8_t*>(block);
  const std::uint32_t pages = bytes / kPageBytes + (bytes % kPageBytes != 0 ? 1U : 0U);
  for (std::uint32_t page = 0; page < pages; ++page) first[page * kPageBytes] = 0;
}

void Win32Memory::VirtualFree(void* block) { ::VirtualFree(block, 0, MEM_RELEASE); }

}  // namespace qdix::os::win32
