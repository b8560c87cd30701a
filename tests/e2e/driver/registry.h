// The registry keys that the program writes to: reads, sets, removes and restores them.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/e2e/driver/registry_tree.h"

namespace qdix::e2e {

inline const KeyPath kSettings{HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\QDIX\\Settings"};
inline const KeyPath kStartup{HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\QDIX\\Startup"};
inline const KeyPath kHelpSettings{HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\QDIX\\Help"};
inline const KeyPath kMachineKey{HKEY_LOCAL_MACHINE, "SOFTWARE\\QDIX"};
/// Replaces the machine's key if that one cannot be written.
inline const KeyPath kUserKey{HKEY_CURRENT_USER, "Software\\QDIX"};
inline const KeyPath kRunKey{HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Windows\\CurrentVersion\\Run"};
inline constexpr const char* kRunValue = "Quondix";

using RegistryTexts = std::map<std::string, std::string>;

/// Returns the text of a value, or nothing if there is none.
[[nodiscard]] std::optional<std::string> RegistryText(const KeyPath& key, const std::string& name);
/// Returns all values of a key; a value that is not a text reads "(no text)".
[[nodiscard]] RegistryTexts TextsOf(const KeyPath& key);
void SetRegistryText(const KeyPath& key, const std::string& name, const std::string& text);

/// Returns type and bytes of a value as "3: 00 18 00 00", or nothing if there is none.
[[nodiscard]] std::optional<std::string> RegistryBytes(const KeyPath& key, const std::string& name);
void SetRegistryBytes(const KeyPath& key, const std::string& name, const std::string& bytes);

/// A snapshot of everything that the program keeps in the registry, taken at construction.
class ProgramRegistry {
 public:
  ProgramRegistry();

  /// Makes the machine look as if it had never seen the program.
  static void Clear();
  void PutBack() const;

  bool operator==(const ProgramRegistry&) const = default;

 private:
  std::vector<RegistryTree> keys_;
  std::optional<std::string> run_value_;
};

}  // namespace qdix::e2e
