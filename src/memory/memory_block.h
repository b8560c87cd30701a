// A block of memory that a release takes from Windows and gives back. The destructor frees it.
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

  /// Allocates upper_index + 1 zeroed bytes and writes into each of their pages. Rounds the index half to
  /// even to a signed 32-bit number first. Errors: 6 if it does not fit, 9 if it is below zero, 7 if memory
  /// is short. The block is then empty.
  base::Status Allocate(double upper_index);

  /// Frees the block; does nothing if it is empty.
  void Release();

 private:
  os::Memory& memory_;
  void* block_ = nullptr;
};

}  // namespace qdix::memory
