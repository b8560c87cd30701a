#include "config_launcher/entry_list.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"
#include "config_launcher/entry_text.h"
#include "config_launcher/picked_files.h"

namespace qdix::config_launcher {

namespace {

using launcher::LauncherEntry;

std::string Trimmed(const ui::TextBox& box) { return std::string(base::Trim(box.Text())); }

}  // namespace

EntryList::EntryList(const ConfigSystem& system, ConfigScreen& screen, EditorBoxes& boxes)
    : system_(system), screen_(screen), boxes_(boxes) {
  screen_.lstPrograms.OnClick = ui::Handler::To<&EntryList::lstPrograms_Click>(*this);
  screen_.lstPrograms.OnRowKey =
      base::Callback<base::Status(ui::RowKey)>::To<&EntryList::lstPrograms_RowKey>(*this);
  screen_.cmdNew.OnClick = ui::Handler::To<&EntryList::cmdNew_Click>(*this);
  screen_.cmdAdd.OnClick = ui::Handler::To<&EntryList::cmdAdd_Click>(*this);
  screen_.cmdChange.OnClick = ui::Handler::To<&EntryList::cmdChange_Click>(*this);
  screen_.cmdRemove.OnClick = ui::Handler::To<&EntryList::cmdRemove_Click>(*this);
  screen_.cmdMoveUp.OnClick = ui::Handler::To<&EntryList::cmdMoveUp_Click>(*this);
  screen_.cmdMoveDown.OnClick = ui::Handler::To<&EntryList::cmdMoveDown_Click>(*this);
}

void EntryList::Take(const std::vector<LauncherEntry>& entries) {
  on_disk_ = entries;
  entries_ = entries;
  Select(entries_.empty() ? kNone : 0);
  FillFields();
}

LauncherEntry EntryList::Typed() const {
  return {Trimmed(screen_.txtName), Trimmed(screen_.txtPath), FolderText(screen_.txtStartIn.Text())};
}

LauncherEntry EntryList::Shown() const {
  return selected_ == kNone ? LauncherEntry{} : entries_[static_cast<std::size_t>(selected_)];
}

void EntryList::Select(int index) {
  selected_ = index;
  FillList();
  RefreshButtons();
}

void EntryList::FillFields(const LauncherEntry& entry) {
  filled_ = entry;
  screen_.txtName.SetText(entry.name);
  screen_.txtPath.SetText(entry.path);
  screen_.txtStartIn.SetText(entry.start_in);
}

void EntryList::FillList() {
  screen_.lstPrograms.Clear();
  for (const LauncherEntry& entry : entries_) {
    screen_.lstPrograms.AddItem(entry.name.empty() ? "(no name)" : entry.name);
  }
  base::Ignore(screen_.lstPrograms.SetSelectedIndex(selected_));  // always a valid row
  screen_.lblCount.SetCaption(
      base::Concat({"(", base::TextOf(Count()), " of ",
                    base::TextOf(static_cast<std::int32_t>(launcher::kMaxEntries)), ")"}));
}

void EntryList::RefreshButtons() {
  screen_.cmdChange.SetEnabled(selected_ != kNone);
  screen_.cmdRemove.SetEnabled(selected_ != kNone);
  screen_.cmdMoveUp.SetEnabled(selected_ > 0);
  screen_.cmdMoveDown.SetEnabled(selected_ != kNone && selected_ + 1 < Count());
}

/// Also called after an assignment from this class; then there is nothing to do.
base::Status EntryList::lstPrograms_Click() {
  const int chosen = screen_.lstPrograms.SelectedIndex();
  if (chosen == selected_) return base::kDone;
  if (!MayDiscardFields()) {
    base::Ignore(screen_.lstPrograms.SetSelectedIndex(selected_));  // the row was selected before
    return base::kDone;
  }
  selected_ = chosen;
  FillFields();
  RefreshButtons();
  return base::kDone;
}

base::Status EntryList::lstPrograms_RowKey(ui::RowKey key) {
  switch (key) {
    case ui::RowKey::kRemove:
      return cmdRemove_Click();
    case ui::RowKey::kMoveUp:
      return cmdMoveUp_Click();
    case ui::RowKey::kMoveDown:
      return cmdMoveDown_Click();
  }
  return base::kDone;
}

bool EntryList::MayDiscardFields() {
  return !HasUnusedFields() || boxes_.Ask(
                                   "What you typed in the fields is not in the list. To put it there, answer "
                                   "No and press \"Add\" or \"Change\".\r\n\r\nDo you want to discard it?");
}

base::Status EntryList::cmdNew_Click() {
  if (!MayDiscardFields()) return base::kDone;
  Select(kNone);
  FillFields();
  screen_.txtName.SetFocus();
  return base::kDone;
}

void EntryList::StartNew(LauncherEntry entry) {
  if (selected_ == kNone) {
    const LauncherEntry typed = Typed();
    if (!typed.name.empty() && typed.name != filled_.name) entry.name = typed.name;
    if (!typed.start_in.empty() && typed.start_in != filled_.start_in) entry.start_in = typed.start_in;
  } else if (!MayDiscardFields()) {
    return;
  }
  Select(kNone);
  FillFields(entry);
}

bool EntryList::CanBeUsed(const LauncherEntry& entry) {
  if (entry.name.empty()) {
    boxes_.Show("Please type a name for the program.");
    screen_.txtName.SetFocus();
    return false;
  }
  if (IsDividingLine(entry.name)) {
    boxes_.Show("The menu shows the name \"-\" as a dividing line.\r\n\r\nPlease type another name.");
    screen_.txtName.SetFocus();
    return false;
  }
  if (entry.path.empty()) {
    boxes_.Show("Please type a command line, or press \"Browse...\" to find the program.");
    screen_.txtPath.SetFocus();
    return false;
  }
  if (!HasDriveLetter(entry.start_in) &&
      !boxes_.Ask(
          "The launcher cannot use this folder and would show an error at each start. \"Start In:\" needs a "
          "drive letter, even for a network folder.\r\n\r\nDo you want to keep the folder anyway?")) {
    screen_.txtStartIn.SetFocus();
    return false;
  }
  return true;
}

bool EntryList::MayAdd(const LauncherEntry& entry) {
  const bool is_there = std::any_of(entries_.begin(), entries_.end(), [&entry](const LauncherEntry& other) {
    return IsSameEntry(other, entry);
  });
  return !is_there || boxes_.Ask('"' + entry.name +
                                 "\" is already in the list with the same command line and folder.\r\n\r\n"
                                 "Do you want to add it again?");
}

bool EntryList::HasRoom() {
  if (entries_.size() < launcher::kMaxEntries) return true;
  boxes_.Show("The launcher takes 25 programs at most.\r\n\r\nPlease remove one before you add another.");
  return false;
}

base::Status EntryList::cmdAdd_Click() {
  const LauncherEntry entry = Typed();
  if (!HasRoom() || !CanBeUsed(entry) || !MayAdd(entry)) return base::kDone;
  entries_.push_back(entry);
  Select(Count() - 1);
  FillFields();
  return base::kDone;
}

base::Status EntryList::cmdChange_Click() {
  const LauncherEntry entry = Typed();
  if (selected_ == kNone || !CanBeUsed(entry)) return base::kDone;
  At(selected_) = entry;
  Select(selected_);
  FillFields();
  return base::kDone;
}

/// If the fields hold something that is not in the list, keeps it and selects no other entry, which would
/// overwrite it.
base::Status EntryList::cmdRemove_Click() {
  if (selected_ == kNone) return base::kDone;
  const bool keeps_fields = HasUnusedFields();
  const int removed = selected_;
  entries_.erase(entries_.begin() + removed);
  if (keeps_fields) {
    Select(kNone);
  } else {
    Select(std::min(removed, Count() - 1));  // kNone if the list is empty
    FillFields();
  }
  return base::kDone;
}

base::Status EntryList::cmdMoveUp_Click() {
  MoveBy(-1);
  return base::kDone;
}

base::Status EntryList::cmdMoveDown_Click() {
  MoveBy(1);
  return base::kDone;
}

/// Leaves the fields alone: they belong to the entry that moves.
void EntryList::MoveBy(int places) {
  const int target = selected_ + places;
  if (selected_ == kNone || target < 0 || target >= Count()) return;
  std::swap(At(selected_), At(target));
  Select(target);
}

void EntryList::AddFiles(const std::vector<std::string>& paths) {
  if (boxes_.AnyIsOpen()) return;
  const bool keeps_fields = HasUnusedFields();
  const int count_before = Count();
  PickedFiles picked(system_);
  bool has_room = true;
  for (const std::string& path : paths) {
    has_room = entries_.size() < launcher::kMaxEntries;
    if (!has_room || screen_.Window.Unloaded()) break;
    const std::optional<LauncherEntry> entry = picked.EntryOf(path);
    if (entry && MayAdd(*entry)) entries_.push_back(*entry);
  }
  if (Count() != count_before) {
    Select(keeps_fields ? selected_ : Count() - 1);
    if (!keeps_fields) FillFields();
  }
  picked.Report(boxes_);
  if (!has_room) boxes_.Show("The launcher takes 25 programs at most. Not all files were added.");
}

}  // namespace qdix::config_launcher
