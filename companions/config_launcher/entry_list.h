// The list in the window and the fields below it: adding, changing, removing and moving entries.
#pragma once

#include <string>
#include <vector>

#include "config_launcher/config_screen.h"
#include "config_launcher/config_system.h"
#include "config_launcher/editor_boxes.h"
#include "launcher/launcher_file.h"

namespace qdix::config_launcher {

class EntryList {
 public:
  EntryList(const ConfigSystem& system, ConfigScreen& screen, EditorBoxes& boxes);

  /// Shows a list that was read and selects its first entry.
  void Take(const std::vector<launcher::LauncherEntry>& entries);

  [[nodiscard]] const std::vector<launcher::LauncherEntry>& Entries() const { return entries_; }
  /// True if the list differs from the one that was read or last saved.
  [[nodiscard]] bool IsChanged() const { return entries_ != on_disk_; }
  /// The list was saved as it is now.
  void WasSaved() { on_disk_ = entries_; }
  /// True if the fields differ from the selected entry: typed by the user, or taken from a file that the user
  /// picked.
  [[nodiscard]] bool HasUnusedFields() const { return Typed() != Shown(); }

  /// Files were dropped on the list. Adds each of them; the text typed in the fields stays.
  void AddFiles(const std::vector<std::string>& paths);

  /// Selects nothing and fills the fields with an entry, which "Add" then adds. Asks before discarding a
  /// change of the selected entry. If the fields already hold a new entry, a name and folder typed by the
  /// user stay.
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
  /// Returns the contents of the fields, trimmed and without quotation marks in the folder.
  [[nodiscard]] launcher::LauncherEntry Typed() const;
  /// Returns the contents that the fields have without pending changes: the selected entry, or nothing.
  [[nodiscard]] launcher::LauncherEntry Shown() const;

  void Select(int index);
  void FillFields() { FillFields(Shown()); }
  void FillFields(const launcher::LauncherEntry& entry);
  void FillList();
  void RefreshButtons();
  void MoveBy(int places);
  [[nodiscard]] bool MayDiscardFields();
  [[nodiscard]] bool CanBeUsed(const launcher::LauncherEntry& entry);
  /// Asks before adding an entry that is already in the list.
  [[nodiscard]] bool MayAdd(const launcher::LauncherEntry& entry);
  [[nodiscard]] bool HasRoom();

  const ConfigSystem& system_;
  ConfigScreen& screen_;
  EditorBoxes& boxes_;
  std::vector<launcher::LauncherEntry> on_disk_;
  std::vector<launcher::LauncherEntry> entries_;
  /// The entry to which the fields belong; kNone for a new one.
  int selected_ = kNone;
  /// The contents that the program itself last put into the fields.
  launcher::LauncherEntry filled_;
};

}  // namespace qdix::config_launcher
