#include "memory/memory_block.h"

#include "base/numbers.h"

namespace qdix::memory {

base::Status MemoryBlock::Allocate(double upper_index) {
  Release();
  const base::Result<std::int32_t> last = base::ToInt32(upper_index);
  if (!last.Ok()) return last.Error();
  if (last.Value() < 0) return base::kSubscriptOutOfRange;
  const std::uint32_t bytes = static_cast<std::uint32_t>(last.Value()) + 1;
  block_ = memory_.VirtualAlloc(bytes);
  if (block_ == nullptr) return base::kOutOfMemory;
  memory_.TouchPages(block_, bytes);
  return base::kDone;
}

void MemoryBlock::Release() {
  if (block_ == nullptr) return;
  memory_.VirtualFree(block_);
  block_ = nullptr;
}

}  // namespace qdix::memory
