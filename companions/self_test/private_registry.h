// A registry inside one key of the real one: whatever root and path a program uses, its keys are below that
// key, where no other program looks. Only the system statistics are real; they can be read.
#pragma once

#include <string>

#include "os/registry.h"

namespace qdix::self_test {

class PrivateRegistry final : public os::Registry {
 public:
  /// `path` is the key below HKEY_CURRENT_USER that contains everything. Whoever creates it deletes it. The
  /// real registry must outlive this object.
  PrivateRegistry(os::Registry& real, const std::string& path) : real_(real), path_(path) {}

  std::int32_t RegOpenKeyExA(os::KeyHandle parent, const char* subkey, std::uint32_t access,
                             os::KeyHandle& opened) override;
  std::int32_t RegCreateKeyExA(os::KeyHandle parent, const char* subkey, std::uint32_t access,
                               os::KeyHandle& opened) override;
  std::int32_t RegOpenKeyA(os::KeyHandle parent, const char* subkey, os::KeyHandle& opened) override;
  std::int32_t RegCreateKeyA(os::KeyHandle parent, const char* subkey, os::KeyHandle& opened) override;
  /// The roots themselves have no values and accept none.
  std::int32_t RegQueryValueExA(os::KeyHandle key, const char* value_name, std::uint32_t& type,
                                std::uint8_t* data, std::uint32_t& size_bytes) override;
  std::int32_t RegSetValueExA(os::KeyHandle key, const char* value_name, std::uint32_t type,
                              const std::uint8_t* data, std::uint32_t size_bytes) override;
  std::int32_t RegDeleteValueA(os::KeyHandle key, const char* value_name) override;
  std::int32_t RegFlushKey(os::KeyHandle key) override;
  std::int32_t RegCloseKey(os::KeyHandle key) override;

 private:
  /// A key as it is requested from the real registry.
  struct Place {
    os::KeyHandle parent;
    std::string subkey;
  };
  [[nodiscard]] Place Inside(os::KeyHandle parent, const char* subkey) const;

  os::Registry& real_;
  const std::string path_;
};

}  // namespace qdix::self_test
