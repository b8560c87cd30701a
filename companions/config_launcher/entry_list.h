// The list in the window and the fields below it: adding, changing, removing, moving.
#pragma once

#include <string>
#include <vector>

#include "config_launcher/boxes.h"
#include "config_launcher/config_screen.h"
#include "launcher/launcher_file.h"

namespace qdix::config_launcher {

class EntryList {
 public:
  EntryList(const os::System& system, ConfigScreen& screen, Boxes& boxes);

  /// Shows a list as it was read, the first entry selected.
  void Take(const std::vector<launcher::LauncherEntry>& entries);

  [[nodiscard]] const std::vector<launcher::LauncherEntry>& Entries() const { return entries_; }
  /// The list is not the one that was read or last saved.
  [[nodiscard]] bool IsChanged() const { return entries_ != on_disk_; }
  /// The list is on the disk as it is now.
  void WasSaved() { on_disk_ = entries_; }
  /// The fields hold something else than the selected entry: typed, or from a file that was picked.
  [[nodiscard]] bool HasUnusedFields() const { return Typed() != Shown(); }

  /// Files were dropped on the list: adds each of them. What is typed in the fields stays.
  void AddFiles(const std::vector<std::string>& paths);

  /// Selects nothing and fills the fields with an entry that "Add" then adds. Asks before a change of the
  /// selected entry is lost. In an entry that is new already, name and folder stay as the user typed them.
  void StartNew(launcher::LauncherEntry entry);

  base::Status lstPrograms_Click();
  base::Status lstPrograms_RowKey(ui::RowKey key);
  base::Status cmdNew_Click();
  base::Status cmdAdd_Click();
  base::Status cmdChange_Click();
  base::Status cmdRemove_Click();
  base::Status cmdMoveUp_Click();
  base::Status cmdMoveDown_Click();

 private:
  static constexpr int kNone = ui::ListControl::kNoSelection;

  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }
  [[nodiscard]] launcher::LauncherEntry& At(int index) { return entries_[static_cast<std::size_t>(index)]; }
  /// What the fields hold, without blanks at the ends and without quotation marks in the folder.
  [[nodiscard]] launcher::LauncherEntry Typed() const;
  /// What the fields hold while nothing is pending in them: the selected entry, or nothing.
  [[nodiscard]] launcher::LauncherEntry Shown() const;

  void Select(int index);
  void FillFields() { FillFields(Shown()); }
  void FillFields(const launcher::LauncherEntry& entry);
  void FillList();
  void RefreshButtons();
  void MoveBy(int places);
  [[nodiscard]] bool MayDiscardFields();
  [[nodiscard]] bool CanBeUsed(const launcher::LauncherEntry& entry);
  /// Asks before the list holds an entry twice.
  [[nodiscard]] bool MayAdd(const launcher::LauncherEntry& entry);
  [[nodiscard]] bool HasRoom();

  const os::System& system_;
  ConfigScreen& screen_;
  Boxes& boxes_;
  std::vector<launcher::LauncherEntry> on_disk_;
  std::vector<launcher::LauncherEntry> entries_;
  /// The entry that the fields belong to; none for a new one.
  int selected_ = kNone;
  /// What the program itself last put into the fields.
  launcher::LauncherEntry filled_;
};

}  // namespace qdix::config_launcher
