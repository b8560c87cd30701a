// What the programs change of the system itself: system.ini, its backup, and two keys of the registry. Kept
// by one object and put back at its end, with readers and writers for tests in between.
#pragma once

#include <optional>
#include <string>

#include "tests/e2e/driver/registry.h"

namespace qdix::e2e {

inline constexpr const char* kSystemIni = "system.ini";
inline constexpr const char* kSystemBackup = "system.qdix";
inline const KeyPath kTemplates{HKEY_LOCAL_MACHINE,
                                "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates"};

/// The bytes of a file in the Windows directory, or nothing where there is none.
[[nodiscard]] std::optional<std::string> WindowsFile(const std::string& name);
/// Makes such a file hold these bytes; nothing deletes it.
void SetWindowsFile(const std::string& name, const std::optional<std::string>& bytes);

/// The text of an entry of system.ini, as every program reads it; nothing where there is none.
[[nodiscard]] std::optional<std::string> SystemIniText(const std::string& section, const std::string& key);
void SetSystemIniText(const std::string& section, const std::string& key, const std::string& text);

class SystemIniKeeper {
 public:
  SystemIniKeeper() = default;
  SystemIniKeeper(const SystemIniKeeper&) = delete;
  SystemIniKeeper& operator=(const SystemIniKeeper&) = delete;
  /// Puts everything back. The programs of the test must have ended.
  ~SystemIniKeeper() { PutBack(); }
  void PutBack() const;

  /// True while all of it is as it was kept.
  [[nodiscard]] bool NothingChanged() const;

 private:
  const std::optional<std::string> system_ini_ = WindowsFile(kSystemIni);
  const std::optional<std::string> backup_ = WindowsFile(kSystemBackup);
  const RegistryTree record_{kMachineKey};
  const RegistryTree templates_{kTemplates};
};

}  // namespace qdix::e2e
