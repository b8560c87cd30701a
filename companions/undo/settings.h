// The record, the backup and the system itself: reading what was and what is, and putting back.
#pragma once

#include <optional>
#include <string>

#include "os/system.h"
#include "shell/module_registry.h"
#include "tuning/cache/system_ini.h"
#include "undo/before.h"

namespace qdix::undo {

class Settings {
 public:
  explicit Settings(const os::System& system)
      : system_(system), module_registry_(system.registry), system_ini_(system.profile_files, system.files) {}

  /// A record was taken.
  [[nodiscard]] bool HasRecord() const;
  /// There is a copy of system.ini from before the first change.
  [[nodiscard]] bool HasBackup() const;

  /// What the record says of an entry and, where it says nothing of one of system.ini, the backup.
  [[nodiscard]] Before ReadBefore(const Entry& entry) const;
  /// What stands in the system, a text above kLongestText cut; nothing where there is no such entry, or it
  /// cannot be read.
  [[nodiscard]] std::optional<std::string> ReadNow(const Entry& entry) const;

  /// Writes what was before, or removes the entry. A refusal shows in what is read afterwards. `before` is
  /// known.
  void PutBack(const Entry& entry, const Before& before);

  /// Copies the backup over system.ini. False when that failed.
  bool RestoreWholeFile();

 private:
  [[nodiscard]] std::optional<std::string> ReadText(const char* path, const char* value_name) const;
  [[nodiscard]] std::optional<std::string> ReadEntry(const Entry& entry, const char* file) const;
  [[nodiscard]] std::string BackupPath() const;
  [[nodiscard]] bool IsFile(const std::string& path) const;

  const os::System& system_;
  shell::ModuleRegistry module_registry_;
  tuning::SystemIni system_ini_;
};

}  // namespace qdix::undo
