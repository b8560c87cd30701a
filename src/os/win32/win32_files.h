// Files of the real system. Forwards and nothing else.
#pragma once

#include "os/files.h"

namespace qdix::os::win32 {

class Win32Files final : public Files {
 public:
  [[nodiscard]] std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) override;
  bool CopyFileA(const char* from, const char* to) override;
  [[nodiscard]] std::uint32_t GetFileAttributesA(const char* path) override;
};

}  // namespace qdix::os::win32
