// A block of bytes that a release takes from the system and gives back. Owns the block: it goes when the
// object does.
#pragma once

#include "base/result.h"
#include "os/memory.h"

namespace qdix::memory {

class MemoryBlock {
 public:
  explicit MemoryBlock(os::Memory& memory) : memory_(memory) {}
  MemoryBlock(const MemoryBlock&) = delete;
  MemoryBlock& operator=(const MemoryBlock&) = delete;
  ~MemoryBlock() { Release(); }

  /// Takes zeroed bytes with the index range 0 to `upper_index` (so one byte more), and writes into each of
  /// their pages. The index is rounded half to even to a signed 32-bit number first. Errors: 6 where it does
  /// not fit, 9 below zero, 7 where there is no room; the block is empty then.
  base::Status Allocate(double upper_index);

  /// Gives the block back; harmless when it is empty.
  void Release();

 private:
  os::Memory& memory_;
  void* block_ = nullptr;
};

}  // namespace qdix::memory
