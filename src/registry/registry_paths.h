// Accesses registry keys by a path whose first element names the root: "HKEY_LOCAL_MACHINE\Software\...".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "os/registry.h"

namespace qdix::registry {

/// The program's machine-wide key.
inline constexpr const char* kMachineKey = "SOFTWARE\\QDIX";
/// Programs that start with Windows, machine-wide, and the program's own entry among them.
inline constexpr const char* kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* kRunValue = "Quondix";
/// The Run key by its full path.
inline constexpr const char* kRunPath =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class RegistryPaths {
 public:
  static constexpr std::int32_t kNoKey = -1;

  explicit RegistryPaths(os::Registry& registry) : registry_(registry) {}

  /// Opens a key with all rights, element by element; the caller closes it. A root alone gives its own
  /// handle. Returns kNoKey if the root is unknown, an element is missing or there are more than 32 elements
  /// below the root.
  [[nodiscard]] std::int32_t GetSubkeyHandle(std::string_view path);

  /// Closes a key. True if the system reported an error.
  bool CloseSubkey(std::int32_t handle);

  /// Removes a value if the key and the value exist.
  void DeleteValue(std::string_view path, const char* value_name);

  /// Removes the entry that starts the program with Windows. Always returns an empty text.
  std::string RegDelete();

  /// Creates a key below a root. Leaves an existing key alone and ignores a failure.
  void CreateRegistryKey(const std::string& path, os::KeyHandle root);

 private:
  os::Registry& registry_;
};

}  // namespace qdix::registry
