// Reads the record, the backup and the current settings, and puts previous values back.
#pragma once

#include <optional>
#include <string>

#include "registry/module_registry.h"
#include "tuning/system_ini.h"
#include "undo/before.h"
#include "undo/ini_state.h"
#include "undo/record.h"
#include "undo/replacement.h"
#include "undo/undo_system.h"

namespace qdix::undo {

/// What is known about system.qdix.
struct Backup {
  IniState state = IniState::kMissing;
  /// Date and DOS name; empty if they cannot be read.
  std::optional<os::FoundFile> found{};
  /// False if its entries differ from the recorded ones: the copy is from another time.
  bool agrees = false;

  [[nodiscard]] bool IsWhole() const { return state == IniState::kWhole; }
  /// True if single entries may be taken from it.
  [[nodiscard]] bool CanSupplyEntries() const { return IsWhole() && agrees; }
};

class Settings {
 public:
  explicit Settings(const UndoSystem& system)
      : system_(system), module_registry_(system.registry), system_ini_(system.profile_files, system.files) {}

  /// Reads the record, the backup and system.ini again. The methods below return what was found then.
  void Read();

  [[nodiscard]] const Record& TheRecord() const { return record_; }
  [[nodiscard]] const Backup& TheBackup() const { return backup_; }
  [[nodiscard]] IniState SystemIniState() const { return system_ini_state_; }
  /// Returns the previous value of the entry with this index.
  [[nodiscard]] Before StateBefore(std::size_t entry) const { return before_[entry]; }
  /// Reads the current value now. Cuts a text longer than kMaxTextLength. Empty if there is no such entry or
  /// it cannot be read.
  [[nodiscard]] std::optional<std::string> ReadNow(const Entry& entry) const;

  /// Writes the previous value, or removes the entry and all its duplicates. `before` must be known. A
  /// failure shows when the value is read again.
  void PutBack(const Entry& entry, const Before& before);

  /// Makes Windows write the entries of system.ini that it holds in memory. Until then a program that reads
  /// or replaces the file works with the old entries.
  void FlushSystemIni();

  /// Replaces system.ini by the backup, unless the backup is no longer complete.
  Replacement RestoreWholeFile();
  /// Allows the removal of Q-DIX's own template from now on, even if no other template is recorded.
  void OfferOwnTemplate() { offers_own_template_ = true; }

  /// Returns the Windows folder with a backslash at the end.
  [[nodiscard]] std::string WindowsFolder() const { return system_ini_.WindowsFolder(); }

 private:
  using Texts = std::array<std::optional<std::string>, kEntries.size()>;

  [[nodiscard]] IniFile ReadFile(const std::string& path) const;
  void ReadBackup();
  [[nodiscard]] Texts ReadBackupTexts() const;
  [[nodiscard]] bool BackupAgrees(const Texts& texts) const;
  [[nodiscard]] Before ReadBefore(std::size_t entry, const Texts& backup_texts) const;
  [[nodiscard]] std::optional<std::string> ReadTemplate() const;
  [[nodiscard]] std::optional<std::string> ReadEntry(const Entry& entry, const char* file) const;
  void Remove(const Entry& entry);
  [[nodiscard]] std::string BackupPath() const;

  const UndoSystem& system_;
  registry::ModuleRegistry module_registry_;
  tuning::SystemIni system_ini_;
  Record record_;
  Backup backup_;
  IniState system_ini_state_ = IniState::kMissing;
  std::array<Before, kEntries.size()> before_;
  bool offers_own_template_ = false;
};

}  // namespace qdix::undo
