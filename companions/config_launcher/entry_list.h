// The list in the window and the fields below it: adding, changing, removing, moving.
#pragma once

#include <optional>
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
  /// The list is not the one that was read.
  [[nodiscard]] bool IsChanged() const { return entries_ != as_read_; }
  /// Something is typed in the fields that is neither in the list nor what the selected entry has.
  [[nodiscard]] bool HasUnusedFields() const { return Typed() != Shown(); }

  /// Files were dropped on the list: adds each of them. What is typed in the fields stays.
  void AddFiles(const std::vector<std::string>& paths);

  base::Status lstPrograms_Click();
  base::Status cmdAdd_Click();
  base::Status cmdChange_Click();
  base::Status cmdRemove_Click();
  base::Status cmdMoveUp_Click();
  base::Status cmdMoveDown_Click();

 private:
  static constexpr int kNone = ui::ListControl::kNoSelection;

  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }
  [[nodiscard]] launcher::LauncherEntry& At(int index) { return entries_[static_cast<std::size_t>(index)]; }
  /// What the fields hold, without blanks at the ends.
  [[nodiscard]] launcher::LauncherEntry Typed() const;
  /// What the fields held when they were last filled: the selected entry, or nothing.
  [[nodiscard]] launcher::LauncherEntry Shown() const;

  void Select(int index);
  void FillFields();
  void FillList();
  void RefreshButtons();
  void MoveBy(int places);
  [[nodiscard]] bool CanBeUsed(const launcher::LauncherEntry& entry);
  [[nodiscard]] bool HasRoom();
  [[nodiscard]] std::optional<launcher::LauncherEntry> EntryOfDropped(const std::string& path) const;
  [[nodiscard]] bool IsFolder(const std::string& path) const;

  const os::System& system_;
  ConfigScreen& screen_;
  Boxes& boxes_;
  std::vector<launcher::LauncherEntry> as_read_;
  std::vector<launcher::LauncherEntry> entries_;
  /// The entry that the fields belong to.
  int selected_ = kNone;
};

}  // namespace qdix::config_launcher
