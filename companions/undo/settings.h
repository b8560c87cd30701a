// The record, the backup and the system itself: reading what was and what is, and putting back.
#pragma once

#include <optional>
#include <string>

#include "os/system.h"
#include "shell/module_registry.h"
#include "tuning/cache/system_ini.h"
#include "undo/before.h"
#include "undo/ini_state.h"
#include "undo/record.h"
#include "undo/replacement.h"

namespace qdix::undo {

/// What is known of system.qdix.
struct Backup {
  IniState state = IniState::kMissing;
  /// Date and DOS name; nothing where they cannot be read.
  std::optional<os::FoundFile> found{};
  /// False where its entries are not those that were recorded: it is a copy of another time.
  bool agrees = false;

  [[nodiscard]] bool IsWhole() const { return state == IniState::kWhole; }
  /// Single entries are taken from it.
  [[nodiscard]] bool TellsEntries() const { return IsWhole() && agrees; }
};

class Settings {
 public:
  explicit Settings(const os::System& system)
      : system_(system), module_registry_(system.registry), system_ini_(system.profile_files, system.files) {}

  /// Looks at record, backup and system.ini again; the methods below tell what was found then.
  void Read();

  [[nodiscard]] const Record& TheRecord() const { return record_; }
  [[nodiscard]] const Backup& TheBackup() const { return backup_; }
  [[nodiscard]] IniState SystemIniState() const { return system_ini_state_; }
  /// What the entry with this index was.
  [[nodiscard]] Before BeforeOf(std::size_t entry) const { return before_[entry]; }
  /// What the system holds now, a text above kLongestText cut; nothing where there is no such entry, or it
  /// cannot be read. Asks the system.
  [[nodiscard]] std::optional<std::string> ReadNow(const Entry& entry) const;

  /// Writes what was before, or removes the entry with all its equals. A refusal shows in what is read
  /// afterwards. `before` is known.
  void PutBack(const Entry& entry, const Before& before);

  /// Puts the backup in the place of system.ini, unless it is no longer whole.
  Replacement RestoreWholeFile();
  /// From now on Q-DIX's own template can be removed also where no other is recorded.
  void OfferOwnTemplate() { offers_own_template_ = true; }

  /// The Windows folder with a backslash at its end.
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

  const os::System& system_;
  shell::ModuleRegistry module_registry_;
  tuning::SystemIni system_ini_;
  Record record_;
  Backup backup_;
  IniState system_ini_state_ = IniState::kMissing;
  std::array<Before, kEntries.size()> before_;
  bool offers_own_template_ = false;
};

}  // namespace qdix::undo
