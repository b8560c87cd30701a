// The keys of the registry that the program writes to: read, set, taken away and put back.
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
/// Stands in for the machine's key where that one cannot be written.
inline const KeyPath kUserKey{HKEY_CURRENT_USER, "Software\\QDIX"};
inline const KeyPath kRunKey{HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Windows\\CurrentVersion\\Run"};
inline constexpr const char* kRunValue = "Quondix";

using RegistryTexts = std::map<std::string, std::string>;

/// The text of a value, or nothing where there is none.
[[nodiscard]] std::optional<std::string> RegistryText(const KeyPath& key, const std::string& name);
/// All values of a key; one that is no text reads "(no text)".
[[nodiscard]] RegistryTexts TextsOf(const KeyPath& key);
void SetRegistryText(const KeyPath& key, const std::string& name, const std::string& text);

/// Type and bytes of a value as "3: 00 18 00 00", or nothing where there is none.
[[nodiscard]] std::optional<std::string> RegistryBytes(const KeyPath& key, const std::string& name);
void SetRegistryBytes(const KeyPath& key, const std::string& name, const std::string& bytes);

/// Everything of the program in the registry, as it was when this was made.
class ProgramRegistry {
 public:
  ProgramRegistry();

  /// Makes a machine that has never seen the program.
  static void Clear();
  void PutBack() const;

  bool operator==(const ProgramRegistry&) const = default;

 private:
  std::vector<RegistryTree> keys_;
  std::optional<std::string> run_value_;
};

}  // namespace qdix::e2e
