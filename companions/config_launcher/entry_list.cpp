#include "config_launcher/entry_list.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "config_launcher/entry_text.h"

namespace qdix::config_launcher {

namespace {

using launcher::LauncherEntry;

std::string Trimmed(const ui::TextBox& box) { return std::string(base::Trim(box.Text())); }

}  // namespace

EntryList::EntryList(const os::System& system, ConfigScreen& screen, Boxes& boxes)
    : system_(system), screen_(screen), boxes_(boxes) {
  screen_.lstPrograms.OnClick = ui::Handler::To<&EntryList::lstPrograms_Click>(*this);
  screen_.cmdAdd.OnClick = ui::Handler::To<&EntryList::cmdAdd_Click>(*this);
  screen_.cmdChange.OnClick = ui::Handler::To<&EntryList::cmdChange_Click>(*this);
  screen_.cmdRemove.OnClick = ui::Handler::To<&EntryList::cmdRemove_Click>(*this);
  screen_.cmdMoveUp.OnClick = ui::Handler::To<&EntryList::cmdMoveUp_Click>(*this);
  screen_.cmdMoveDown.OnClick = ui::Handler::To<&EntryList::cmdMoveDown_Click>(*this);
}

void EntryList::Take(const std::vector<LauncherEntry>& entries) {
  as_read_ = entries;
  entries_ = entries;
  Select(entries_.empty() ? kNone : 0);
  FillFields();
}

LauncherEntry EntryList::Typed() const {
  return {Trimmed(screen_.txtName), Trimmed(screen_.txtPath), Trimmed(screen_.txtStartIn)};
}

LauncherEntry EntryList::Shown() const {
  return selected_ == kNone ? LauncherEntry{} : entries_[static_cast<std::size_t>(selected_)];
}

void EntryList::Select(int index) {
  selected_ = index;
  FillList();
  RefreshButtons();
}

void EntryList::FillFields() {
  const LauncherEntry shown = Shown();
  screen_.txtName.SetText(shown.name);
  screen_.txtPath.SetText(shown.path);
  screen_.txtStartIn.SetText(shown.start_in);
}

void EntryList::FillList() {
  screen_.lstPrograms.Clear();
  for (const LauncherEntry& entry : entries_) {
    screen_.lstPrograms.AddItem(entry.name.empty() ? "(no name)" : entry.name);
  }
  base::Ignore(screen_.lstPrograms.SetSelectedIndex(selected_));  // it is one of the rows
  screen_.lblCount.SetCaption("(" + base::TextOf(Count()) + " of " +
                              base::TextOf(static_cast<std::int32_t>(launcher::kMostEntries)) + ")");
}

void EntryList::RefreshButtons() {
  screen_.cmdChange.SetEnabled(selected_ != kNone);
  screen_.cmdRemove.SetEnabled(selected_ != kNone);
  screen_.cmdMoveUp.SetEnabled(selected_ > 0);
  screen_.cmdMoveDown.SetEnabled(selected_ != kNone && selected_ + 1 < Count());
}

/// Also after an assignment from here, which finds nothing to do.
base::Status EntryList::lstPrograms_Click() {
  const int chosen = screen_.lstPrograms.SelectedIndex();
  if (chosen == selected_) return base::kDone;
  if (HasUnusedFields() &&
      !boxes_.Ask("What you typed in the fields is not in the list. If you select another "
                  "program, it is lost.\r\n\r\nDo you want to discard it?")) {
    base::Ignore(screen_.lstPrograms.SetSelectedIndex(selected_));  // it was selected before
    return base::kDone;
  }
  selected_ = chosen;
  FillFields();
  RefreshButtons();
  return base::kDone;
}

bool EntryList::CanBeUsed(const LauncherEntry& entry) {
  if (entry.name.empty()) {
    boxes_.Tell("Please type a name for the program.");
    screen_.txtName.SetFocus();
    return false;
  }
  if (entry.path.empty()) {
    boxes_.Tell("Please type the command line that starts the program, or look for it with \"Browse...\".");
    screen_.txtPath.SetFocus();
    return false;
  }
  return true;
}

bool EntryList::HasRoom() {
  if (entries_.size() < launcher::kMostEntries) return true;
  boxes_.Tell("The launcher takes 25 programs at most.\r\n\r\nPlease remove one before you add another.");
  return false;
}

base::Status EntryList::cmdAdd_Click() {
  const LauncherEntry entry = Typed();
  if (!HasRoom() || !CanBeUsed(entry)) return base::kDone;
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

/// What is typed and nowhere else stays in the fields, and no other entry is selected for them.
base::Status EntryList::cmdRemove_Click() {
  if (selected_ == kNone) return base::kDone;
  const bool keeps_fields = HasUnusedFields();
  const int removed = selected_;
  entries_.erase(entries_.begin() + removed);
  if (keeps_fields) {
    Select(kNone);
  } else {
    Select(std::min(removed, Count() - 1));  // kNone when none is left
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

/// What is typed stays typed: the fields belong to the entry that moves.
void EntryList::MoveBy(int places) {
  const int target = selected_ + places;
  if (selected_ == kNone || target < 0 || target >= Count()) return;
  std::swap(At(selected_), At(target));
  Select(target);
}

bool EntryList::IsFolder(const std::string& path) const {
  const std::uint32_t attributes = system_.files.GetFileAttributesA(path.c_str());
  return attributes != os::kInvalidFileAttributes && (attributes & os::kFileAttributeDirectory) != 0;
}

/// Nothing for what the launcher could not start or a record could not hold.
std::optional<LauncherEntry> EntryList::EntryOfDropped(const std::string& path) const {
  if (IsFolder(path)) return std::nullopt;
  LauncherEntry entry = EntryOfFile(path);
  if (IsShortcut(path)) {
    const auto shortcut = system_.shell_files.ReadShortcut(path);
    if (!shortcut || IsFolder(shortcut->target)) return std::nullopt;
    entry = EntryOfShortcut(path, *shortcut);
  }
  if (!Fits(entry) || entry.name.empty()) return std::nullopt;
  return entry;
}

void EntryList::AddFiles(const std::vector<std::string>& paths) {
  if (boxes_.AnyIsOpen()) return;
  const bool keeps_fields = HasUnusedFields();
  std::string refused;
  bool has_room = true;
  for (const std::string& path : paths) {
    has_room = entries_.size() < launcher::kMostEntries;
    if (!has_room) break;
    const auto entry = EntryOfDropped(path);
    if (entry) {
      entries_.push_back(*entry);
    } else {
      refused += path + std::string(base::kLineBreak);
    }
  }
  Select(keeps_fields || entries_.empty() ? selected_ : Count() - 1);
  if (!keeps_fields) FillFields();
  if (!refused.empty()) {
    boxes_.Tell(
        "These could not be added. They are folders or shortcuts that lead to no file, or their paths are "
        "too "
        "long for the list:\r\n\r\n" +
        refused);
  }
  if (!has_room) boxes_.Tell("The launcher takes 25 programs at most. Not all files were added.");
}

}  // namespace qdix::config_launcher
