// Reads, writes and deletes registry values below a root. Only SetValueEx reports a failure: a failed read
// gives an empty text, a failed write changes nothing.
#pragma once

#include <cstdint>
#include <string>

#include "os/registry.h"

namespace qdix::registry {

class ModuleRegistry {
 public:
  explicit ModuleRegistry(os::Registry& registry) : registry_(registry) {}

  /// Returns a text value up to its first NUL. For a binary value, returns the first two bytes as a signed
  /// decimal number; missing bytes count as 0. Returns an empty text if the key or value is missing, the
  /// value has another type, or it is binary and longer than four bytes.
  [[nodiscard]] std::string ReadRegistryValue(os::KeyHandle root, const std::string& subkey,
                                              const char* value_name);
  /// Reads a value in the same way from an open key.
  [[nodiscard]] std::string QueryValueText(os::KeyHandle key, const char* value_name);

  /// Deletes a value. Creates the key if it is missing.
  void DeleteRegistryValue(os::KeyHandle root, const std::string& subkey, const char* value_name);

  /// Writes the number in `text` as four bytes, the upper two of them zero. Creates the key if it is missing.
  /// Writes nothing unless the text is a 16-bit number.
  void WriteRegistryBinary(os::KeyHandle root, const std::string& subkey, const char* value_name,
                           const std::string& text);

  /// Writes a text to an existing key. Never creates a key.
  void WriteRegistryText(os::KeyHandle root, const std::string& subkey, const char* value_name,
                         const std::string& text);

  /// Writes the text with its NUL for type 1, or the number in the text for type 4. For any other type,
  /// writes nothing and returns 0. Returns the system's error code.
  std::int32_t SetValueEx(os::KeyHandle key, const char* value_name, std::uint32_t type,
                          const std::string& value);

 private:
  [[nodiscard]] std::string QueryBinary(os::KeyHandle key, const char* value_name);

  os::Registry& registry_;
};

}  // namespace qdix::registry
