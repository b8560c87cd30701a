// What the program asks of Windows about memory: the status record, and blocks allocated directly from the
// system.
#pragma once

#include <cstdint>

namespace qdix::os {

/// The memory status record, in bytes. The fields are unsigned; where the program reads one as signed, a
/// comment there says so.
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

/// Bytes per page on every machine that the program runs on.
inline constexpr std::uint32_t kPageBytes = 4096;

class Memory {
 public:
  /// Returns the record with every field set; never fails.
  [[nodiscard]] virtual MemoryStatus GlobalMemoryStatus() = 0;

  /// Reserves and commits `bytes` of zeroed memory, which the system rounds up to whole pages. Returns null
  /// if there is no room.
  [[nodiscard]] virtual void* VirtualAlloc(std::uint32_t bytes) = 0;

  /// Writes once into every page of a block of `bytes`, which makes each page use memory. The content stays
  /// zero.
  virtual void TouchPages(void* block, std::uint32_t bytes) = 0;

  /// Frees the whole block. `block` comes from VirtualAlloc and is not null.
  virtual void VirtualFree(void* block) = 0;

 protected:
  ~Memory() = default;
};

}  // namespace qdix::os
