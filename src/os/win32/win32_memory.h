// Implements `Memory` on Windows. Only forwards.
#pragma once

#include "os/memory.h"

namespace qdix::os::win32 {

class Win32Memory final : public Memory {
 public:
  MemoryStatus GlobalMemoryStatus() override;
  void* VirtualAlloc(std::uint32_t bytes) override;
  void TouchPages(void* block, std::uint32_t bytes) override;
  void VirtualFree(void* block) override;
};

}  // namespace qdix::os::win32
