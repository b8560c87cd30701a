// What a release is measured beside: memory that is taken, touched and given back, and empty pumps.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

/// A block of memory with a byte written into each of its pages.
class TouchedBlock {
 public:
  explicit TouchedBlock(SIZE_T bytes);
  TouchedBlock(const TouchedBlock&) = delete;
  TouchedBlock& operator=(const TouchedBlock&) = delete;
  ~TouchedBlock();

  /// False where the system had no such block.
  [[nodiscard]] bool IsThere() const { return begin_ != nullptr; }

 private:
  volatile char* begin_;
};

/// Handles the messages that are waiting, so many times.
void Pump(int times);

}  // namespace qdix::e2e
