// Saves what the programs change in the system itself (system.ini, its backup, and two registry keys) and
// restores it at the end. Tests read and write it with the functions here.
#pragma once

#include <optional>
#include <string>

#include "tests/e2e/driver/registry.h"

namespace qdix::e2e {

inline constexpr const char* kSystemIni = "system.ini";
inline constexpr const char* kSystemBackup = "system.qdix";
inline const KeyPath kTemplates{HKEY_LOCAL_MACHINE,
                                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates"};

/// Returns the bytes of a file in the Windows directory, or nothing if it does not exist.
[[nodiscard]] std::optional<std::string> WindowsFile(const std::string& name);
/// Writes these bytes to such a file; without bytes deletes it.
void SetWindowsFile(const std::string& name, const std::optional<std::string>& bytes);

/// Returns the text of an entry of system.ini, as every program reads it, or nothing if there is none.
[[nodiscard]] std::optional<std::string> SystemIniText(const std::string& section, const std::string& key);
void SetSystemIniText(const std::string& section, const std::string& key, const std::string& text);

class SystemIniKeeper {
 public:
  SystemIniKeeper() = default;
  SystemIniKeeper(const SystemIniKeeper&) = delete;
  SystemIniKeeper& operator=(const SystemIniKeeper&) = delete;
  /// Restores everything. The programs of the test must have ended.
  ~SystemIniKeeper() { PutBack(); }
  void PutBack() const;

  /// True while everything is as it was saved.
  [[nodiscard]] bool NothingChanged() const;

 private:
  const std::optional<std::string> system_ini_ = WindowsFile(kSystemIni);
  const std::optional<std::string> backup_ = WindowsFile(kSystemBackup);
  const RegistryTree record_{kMachineKey};
  const RegistryTree templates_{kTemplates};
};

}  // namespace qdix::e2e
