// Implements `Registry` on Windows. Only forwards.
#pragma once

#include "os/registry.h"

namespace qdix::os::win32 {

class Win32Registry final : public Registry {
 public:
  std::int32_t RegOpenKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                             KeyHandle& opened) override;
  std::int32_t RegCreateKeyExA(KeyHandle parent, const char* subkey, std::uint32_t access,
                               KeyHandle& opened) override;
  std::int32_t RegOpenKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) override;
  std::int32_t RegCreateKeyA(KeyHandle parent, const char* subkey, KeyHandle& opened) override;
  std::int32_t RegQueryValueExA(KeyHandle key, const char* value_name, std::uint32_t& type,
                                std::uint8_t* data, std::uint32_t& size_bytes) override;
  std::int32_t RegSetValueExA(KeyHandle key, const char* value_name, std::uint32_t type,
                              const std::uint8_t* data, std::uint32_t size_bytes) override;
  std::int32_t RegDeleteValueA(KeyHandle key, const char* value_name) override;
  std::int32_t RegFlushKey(KeyHandle key) override;
  std::int32_t RegCloseKey(KeyHandle key) override;
};

}  // namespace qdix::os::win32
