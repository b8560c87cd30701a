// What the program asks of the system about memory: the status record, and blocks that come straight from the
// system.
#pragma once

#include <cstdint>

namespace qdix::os {

/// The memory status record, in bytes. Fields are unsigned in the system and read as signed by the program
/// where that is said.
struct MemoryStatus {
  std::uint32_t length = 32;
  std::uint32_t memory_load_percent = 0;
  std::uint32_t total_physical = 0;
  std::uint32_t available_physical = 0;
  std::uint32_t total_page_file = 0;
  std::uint32_t available_page_file = 0;
  std::uint32_t total_virtual = 0;
  std::uint32_t available_virtual = 0;
};

/// The size of a page on every machine the program runs on, in bytes.
inline constexpr std::uint32_t kPageBytes = 4096;

class Memory {
 public:
  virtual ~Memory() = default;

  /// Fills every field; never fails.
  [[nodiscard]] virtual MemoryStatus GlobalMemoryStatus() = 0;

  /// Reserves and commits `bytes` (rounded up to whole pages by the system) of zeroed memory; null when there
  /// is no room.
  [[nodiscard]] virtual void* VirtualAlloc(std::uint32_t bytes) = 0;

  /// Writes once into every page of a block of `bytes`, so that each page takes memory. The contents stay
  /// zero.
  virtual void TouchPages(void* block, std::uint32_t bytes) = 0;

  /// Gives the whole block back. `block` comes from VirtualAlloc and is not null.
  virtual void VirtualFree(void* block) = 0;
};

}  // namespace qdix::os
