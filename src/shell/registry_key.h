// An open registry key that closes itself, and the two shapes of value that most of the program reads and
// writes.
#pragma once

#include <optional>
#include <string>

#include "os/registry.h"

namespace qdix::shell {

/// The text of a value whose type and size are known, up to its first NUL. Nothing where it cannot be read,
/// is no text any more, or is longer than anything that the program keeps.
[[nodiscard]] std::optional<std::string> ReadTextOfSize(os::Registry& registry, os::KeyHandle key,
                                                        const char* value_name, std::uint32_t size_bytes);

class RegistryKey {
 public:
  /// Opens an existing key; `IsOpen` tells whether that worked.
  [[nodiscard]] static RegistryKey Open(os::Registry& registry, os::KeyHandle root, const std::string& path,
                                        std::uint32_t access);
  /// Opens a key, making it and the keys above it when they are missing.
  [[nodiscard]] static RegistryKey Create(os::Registry& registry, os::KeyHandle root, const std::string& path,
                                          std::uint32_t access = os::kKeyAllAccess);

  RegistryKey(RegistryKey&& other) noexcept;
  RegistryKey& operator=(RegistryKey&&) = delete;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey();

  [[nodiscard]] bool IsOpen() const { return open_; }

  /// A value of type text, up to its first NUL; nothing when it is missing, of another type, or cannot be
  /// read.
  [[nodiscard]] std::optional<std::string> ReadText(const char* value_name) const;
  /// True where a value of this name exists, whatever it holds.
  [[nodiscard]] bool HasValue(const char* value_name) const;
  /// Writes the text with its closing NUL. False when the system refuses.
  bool WriteText(const char* value_name, const std::string& text);
  /// Writes what was changed to the disk. False when the system refuses.
  bool Flush();
  /// False when there was no such value or the system refuses.
  bool DeleteValue(const char* value_name);

 private:
  explicit RegistryKey(os::Registry& registry) : registry_(registry) {}

  os::Registry& registry_;
  os::KeyHandle handle_ = 0;
  bool open_ = false;
};

}  // namespace qdix::shell
