#include "os/simulated/simulated_memory.h"

namespace qdix::os::simulated {

namespace {

std::uintptr_t AddressOf(void* block) { return reinterpret_cast<std::uintptr_t>(block); }

std::uint32_t PagesOf(std::uint32_t bytes) {
  return static_cast<std::uint32_t>((std::uint64_t{bytes} + kPageBytes - 1) / kPageBytes);
}

}  // namespace

MemoryStatus SimulatedMemory::GlobalMemoryStatus() {
  log_.Record("GlobalMemoryStatus");
  return status_;
}

void* SimulatedMemory::VirtualAlloc(std::uint32_t bytes) {
  const bool fails = log_.RecordAndFail("VirtualAlloc", std::to_string(bytes));
  if (fails || bytes == 0 || taken_bytes_ + bytes > limit_bytes_) return nullptr;
  taken_bytes_ += bytes;
  all_.push_back(bytes);
  const std::uintptr_t address = next_address_;
  next_address_ += std::uintptr_t{PagesOf(bytes)} * kPageBytes;
  blocks_[address] = {bytes, 0};
  return reinterpret_cast<void*>(address);
}

void SimulatedMemory::TouchPages(void* block, std::uint32_t bytes) {
  log_.Record("TouchPages", std::to_string(bytes));
  const auto found = blocks_.find(AddressOf(block));
  if (found == blocks_.end() || found->second.bytes != bytes) {
    log_.Misuse("pages touched that are no block of this size");
    return;
  }
  found->second.touched_pages = PagesOf(bytes);
}

void SimulatedMemory::VirtualFree(void* block) {
  const auto found = blocks_.find(AddressOf(block));
  if (found == blocks_.end()) {
    log_.Misuse("a block freed that is not held");
    return;
  }
  log_.Record("VirtualFree", std::to_string(found->second.bytes));
  if (found->second.touched_pages != PagesOf(found->second.bytes)) {
    log_.Misuse("a block freed whose pages were not all written");
  }
  taken_bytes_ -= found->second.bytes;
  blocks_.erase(found);
}

std::vector<std::uint32_t> SimulatedMemory::OutstandingBlocks() const {
  std::vector<std::uint32_t> sizes;
  for (const auto& [address, block] : blocks_) sizes.push_back(block.bytes);
  return sizes;
}

std::vector<std::uint32_t> SimulatedMemory::TouchedPages() const {
  std::vector<std::uint32_t> pages;
  for (const auto& [address, block] : blocks_) pages.push_back(block.touched_pages);
  return pages;
}

}  // namespace qdix::os::simulated
