#include "self_test/limited_memory.h"

namespace qdix::self_test {

void* LimitedMemory::VirtualAlloc(std::uint32_t bytes) {
  if (bytes > kMaxBytes) return nullptr;
  void* const block = real_.VirtualAlloc(bytes);
  if (block != nullptr) ++taken_;
  return block;
}

void LimitedMemory::TouchPages(void* block, std::uint32_t bytes) {
  touched_bytes_ += bytes;
  real_.TouchPages(block, bytes);
}

void LimitedMemory::VirtualFree(void* block) {
  ++given_back_;
  real_.VirtualFree(block);
}

}  // namespace qdix::self_test
