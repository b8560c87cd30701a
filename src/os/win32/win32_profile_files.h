// Implements `ProfileFiles` on Windows. Only forwards.
#pragma once

#include "os/profile_files.h"

namespace qdix::os::win32 {

class Win32ProfileFiles final : public ProfileFiles {
 public:
  [[nodiscard]] std::uint32_t GetPrivateProfileStringA(const char* section, const char* key,
                                                       const char* missing, char* buffer,
                                                       std::uint32_t size_bytes, const char* file) override;
  bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                  const char* file) override;
};

}  // namespace qdix::os::win32
