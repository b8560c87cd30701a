#include "tests/e2e/driver/process_memory.h"

#include <algorithm>
#include <numeric>

namespace qdix::e2e {

namespace {

/// Left free besides the one block: enough for a message box and its fonts.
constexpr SIZE_T kSmallPieceBytes = 16 * 1024 * 1024;
constexpr SIZE_T kLargestPieceBytes = SIZE_T{1} << 30;

}  // namespace

std::vector<std::uint64_t> CommittedBlocks(HANDLE process, std::uint64_t at_least_bytes) {
  std::vector<std::uint64_t> sizes;
  const void* allocation = nullptr;
  MEMORY_BASIC_INFORMATION region = {};
  std::uintptr_t address = 0;
  while (VirtualQueryEx(process, reinterpret_cast<void*>(address), &region, sizeof region) != 0) {
    if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) {
      if (sizes.empty() || allocation != region.AllocationBase) sizes.push_back(0);
      allocation = region.AllocationBase;
      sizes.back() += region.RegionSize;
    }
    const std::uintptr_t next = address + region.RegionSize;
    if (next <= address) break;  // the end of the address space
    address = next;
  }
  std::erase_if(sizes, [at_least_bytes](std::uint64_t size) { return size < at_least_bytes; });
  std::sort(sizes.begin(), sizes.end());
  return sizes;
}

std::uint64_t CommittedBytes(HANDLE process) {
  const std::vector<std::uint64_t> blocks = CommittedBlocks(process, 0);
  return std::accumulate(blocks.begin(), blocks.end(), std::uint64_t{0});
}

bool RestrictAddressSpace(HANDLE process, std::uint32_t left_bytes) {
  void* const left = VirtualAllocEx(process, nullptr, left_bytes, MEM_RESERVE, PAGE_NOACCESS);
  if (left == nullptr) return false;
  // Tried, not looked up: Wine hands out addresses that it lists as taken.
  for (SIZE_T bytes = kLargestPieceBytes; bytes >= kSmallPieceBytes; bytes /= 2) {
    while (VirtualAllocEx(process, nullptr, bytes, MEM_RESERVE, PAGE_NOACCESS) != nullptr) {
    }
  }
  return VirtualFreeEx(process, left, 0, MEM_RELEASE) != 0;
}

}  // namespace qdix::e2e
