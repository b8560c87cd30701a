// An open registry key that closes itself. Reads and writes the two kinds of value that most of the program
// needs.
#pragma once

#include <optional>
#include <string>

#include "os/registry.h"

namespace qdix::registry {

/// Returns the text of a value of known size, up to its first NUL. Returns nullopt if it cannot be read, is
/// no longer a text, or is longer than anything that the program stores.
[[nodiscard]] std::optional<std::string> ReadTextOfSize(os::Registry& registry, os::KeyHandle key,
                                                        const char* value_name, std::uint32_t size_bytes);

class RegistryKey {
 public:
  /// Opens an existing key. `IsOpen` says whether that worked.
  [[nodiscard]] static RegistryKey Open(os::Registry& registry, os::KeyHandle root, const std::string& path,
                                        std::uint32_t access);
  /// Opens a key and creates it, and the keys above it, if they are missing.
  [[nodiscard]] static RegistryKey Create(os::Registry& registry, os::KeyHandle root, const std::string& path,
                                          std::uint32_t access = os::kKeyAllAccess);

  RegistryKey(RegistryKey&& other) noexcept;
  RegistryKey& operator=(RegistryKey&&) = delete;
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;
  ~RegistryKey();

  [[nodiscard]] bool IsOpen() const { return open_; }

  /// Returns a text value up to its first NUL, or nullopt if it is missing, has another type or cannot be
  /// read.
  [[nodiscard]] std::optional<std::string> ReadText(const char* value_name) const;
  /// True if a value of this name exists, whatever its content.
  [[nodiscard]] bool HasValue(const char* value_name) const;
  /// Writes the text with its terminating NUL. False if the system refuses.
  bool WriteText(const char* value_name, const std::string& text);
  /// Writes changes to the disk. False if the system refuses.
  bool Flush();
  /// False if there was no such value or the system refuses.
  bool DeleteValue(const char* value_name);

 private:
  explicit RegistryKey(os::Registry& registry) : registry_(registry) {}

  os::Registry& registry_;
  os::KeyHandle handle_ = 0;
  bool open_ = false;
};

}  // namespace qdix::registry
