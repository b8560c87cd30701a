// Memory of the simulated machine. Blocks use no memory of the host: their addresses are made up and must not
// be accessed.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "os/memory.h"
#include "os/simulated/call_log.h"

namespace qdix::os::simulated {

class SimulatedMemory final : public Memory {
 public:
  explicit SimulatedMemory(CallLog& log) : log_(log) {}

  MemoryStatus GlobalMemoryStatus() override;
  void* VirtualAlloc(std::uint32_t bytes) override;
  void TouchPages(void* block, std::uint32_t bytes) override;
  void VirtualFree(void* block) override;

  void SetStatus(const MemoryStatus& status) { status_ = status; }
  void LimitAllocatableBytes(std::uint64_t bytes) { limit_bytes_ = bytes; }

  [[nodiscard]] const std::vector<std::uint32_t>& AllAllocations() const { return all_; }
  void ClearAllocations() { all_.clear(); }
  [[nodiscard]] std::vector<std::uint32_t> OutstandingBlocks() const;
  /// Returns the number of pages written in each outstanding block.
  [[nodiscard]] std::vector<std::uint32_t> TouchedPages() const;

 private:
  struct Block {
    std::uint32_t bytes;
    std::uint32_t touched_pages;
  };

  CallLog& log_;
  MemoryStatus status_;
  std::uint64_t limit_bytes_ = 0xFFFF0000U;
  std::uint64_t taken_bytes_ = 0;
  std::uintptr_t next_address_ = 0x10000000U;
  std::map<std::uintptr_t, Block> blocks_;
  std::vector<std::uint32_t> all_;
};

}  // namespace qdix::os::simulated
