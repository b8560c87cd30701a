#include "tests/soak/live_allocations.h"

#include <cstdlib>

namespace qdix::tests {

namespace {

constinit std::int64_t live_allocations = 0;

}  // namespace

std::int64_t LiveAllocations() { return live_allocations; }

}  // namespace qdix::tests

void* operator new(std::size_t size_bytes) {
  void* const block = std::malloc(size_bytes == 0 ? 1 : size_bytes);
  if (block == nullptr) std::abort();
  ++qdix::tests::live_allocations;
  return block;
}

void operator delete(void* block) noexcept {
  if (block != nullptr) --qdix::tests::live_allocations;
  std::free(block);
}

void operator delete(void* block, std::size_t /*size_bytes*/) noexcept { operator delete(block); }
