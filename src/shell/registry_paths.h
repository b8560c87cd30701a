// Registry keys by a textual path whose first element names the root: "HKEY_LOCAL_MACHINE\Software\...".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "os/registry.h"

namespace qdix::shell {

/// The program's machine-wide key.
inline constexpr const char* kMachineKey = "SOFTWARE\\QDIX";
/// Programs that start with Windows, and the program's own entry among them; machine-wide.
inline constexpr const char* kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* kRunValue = "Quondix";
/// The same key by its full path.
inline constexpr const char* kRunPath =
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class RegistryPaths {
 public:
  static constexpr std::int32_t kNoKey = -1;

  explicit RegistryPaths(os::Registry& registry) : registry_(registry) {}

  /// Opens the key of a path with all rights, element by element; the caller closes it. A root alone gives
  /// its own handle. kNoKey where the root is unknown, an element is missing or there are more than 32.
  [[nodiscard]] std::int32_t GetSubkeyHandle(std::string_view path);

  /// True where the system reported an error.
  bool CloseSubkey(std::int32_t handle);

  /// Removes a value where key and value exist.
  void DeleteValue(std::string_view path, const char* value_name);

  /// Removes the entry by which the program starts with Windows. Always the empty text.
  std::string RegDelete();

  /// Makes a key below a root; an existing one stays as it is, a refusal is passed over.
  void CreateRegistryKey(const std::string& path, os::KeyHandle root);

 private:
  os::Registry& registry_;
};

}  // namespace qdix::shell
