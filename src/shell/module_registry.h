// Registry values below a root: reading as text, writing, deleting. Nothing here reports a failure but
// SetValueEx: a failed read is an empty text, a failed write leaves what was there.
#pragma once

#include <cstdint>
#include <string>

#include "os/registry.h"

namespace qdix::shell {

class ModuleRegistry {
 public:
  explicit ModuleRegistry(os::Registry& registry) : registry_(registry) {}

  /// A text up to its first NUL; of a binary value the first two bytes as a signed number in decimal (missing
  /// bytes count as 0). Empty where key or value is missing, of another type, or binary and longer than four
  /// bytes.
  [[nodiscard]] std::string ReadRegistryValue(os::KeyHandle root, const std::string& subkey,
                                              const char* value_name);
  /// The same for a key that is open.
  [[nodiscard]] std::string QueryValueText(os::KeyHandle key, const char* value_name);

  /// Makes the key where it is missing.
  void DeleteRegistryValue(os::KeyHandle root, const std::string& subkey, const char* value_name);

  /// Writes the number that a text stands for as four bytes, of which the upper two are zero. Makes the key
  /// where it is missing. A text that is no number of 16 bits writes nothing.
  void WriteRegistryBinary(os::KeyHandle root, const std::string& subkey, const char* value_name,
                           const std::string& text);

  /// Writes a text into a key that exists; makes none.
  void WriteRegistryText(os::KeyHandle root, const std::string& subkey, const char* value_name,
                         const std::string& text);

  /// Type 1 writes the text with its NUL, type 4 the number that it stands for; any other type writes nothing
  /// and gives 0. Returns the system's code.
  std::int32_t SetValueEx(os::KeyHandle key, const char* value_name, std::uint32_t type,
                          const std::string& value);

 private:
  [[nodiscard]] std::string QueryBinary(os::KeyHandle key, const char* value_name);

  os::Registry& registry_;
};

}  // namespace qdix::shell
