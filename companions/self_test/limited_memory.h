// The real memory, limited to one small release at a time. Counts what is taken and given back.
#pragma once

#include "os/memory.h"

namespace qdix::self_test {

class LimitedMemory final : public os::Memory {
 public:
  /// A release of 1 MB needs a little less.
  static constexpr std::uint32_t kMaxBytes = 2000000;

  explicit LimitedMemory(os::Memory& real) : real_(real) {}

  [[nodiscard]] os::MemoryStatus GlobalMemoryStatus() override { return real_.GlobalMemoryStatus(); }
  /// Returns null for a block above kMaxBytes.
  [[nodiscard]] void* VirtualAlloc(std::uint32_t bytes) override {
    if (bytes > kMaxBytes) return nullptr;
    void* const block = real_.VirtualAlloc(bytes);
    if (block != nullptr) ++taken_;
    return block;
  }
  void TouchPages(void* block, std::uint32_t bytes) override {
    touched_bytes_ += bytes;
    real_.TouchPages(block, bytes);
  }
  void VirtualFree(void* block) override {
    ++given_back_;
    real_.VirtualFree(block);
  }

  [[nodiscard]] std::uint32_t TouchedBytes() const { return touched_bytes_; }
  [[nodiscard]] int Taken() const { return taken_; }
  [[nodiscard]] int GivenBack() const { return given_back_; }

 private:
  os::Memory& real_;
  std::uint32_t touched_bytes_ = 0;
  int taken_ = 0;
  int given_back_ = 0;
};

}  // namespace qdix::self_test
