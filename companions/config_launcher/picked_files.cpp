#include "config_launcher/picked_files.h"

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"
#include "config_launcher/entry_text.h"

namespace qdix::config_launcher {

namespace {

constexpr std::int32_t kMaxLines = 10;

}  // namespace

void PickedFiles::Lines::Add(const std::string& line) {
  if (++count_ <= kMaxLines) text_ += base::Concat({line, base::kLineBreak});
}

std::string PickedFiles::Lines::Text() const {
  if (count_ <= kMaxLines) return text_;
  return base::Concat({text_, "(and ", base::TextOf(count_ - kMaxLines), " more)", base::kLineBreak});
}

std::optional<launcher::LauncherEntry> PickedFiles::EntryOf(const std::string& path) {
  std::optional<launcher::LauncherEntry> entry = CompleteEntryOf(path);
  if (!entry) {
    refused_.Add(path);
  } else if (!HasDriveLetter(entry->start_in)) {
    without_folder_.Add(entry->name);
    entry->start_in.clear();
  }
  return entry;
}

std::optional<launcher::LauncherEntry> PickedFiles::CompleteEntryOf(const std::string& path) const {
  launcher::LauncherEntry entry;
  if (IsShortcut(path)) {
    const std::optional<os::Shortcut> shortcut = system_.shell_files.ReadShortcut(path);
    if (!shortcut || !CanBeStarted(shortcut->target)) return std::nullopt;
    entry = EntryOfShortcut(system_.files, path, *shortcut);
  } else {
    if (!CanBeStarted(path)) return std::nullopt;
    entry = EntryOfFile(system_.files, path);
  }
  if (!Fits(entry) || entry.name.empty()) return std::nullopt;
  return entry;
}

/// A folder may have the name of a program.
bool PickedFiles::CanBeStarted(const std::string& path) const {
  if (!IsProgram(path)) return false;
  const std::uint32_t attributes = system_.files.GetFileAttributesA(path.c_str());
  return attributes == os::kInvalidFileAttributes || (attributes & os::kFileAttributeDirectory) == 0;
}

void PickedFiles::Report(EditorBoxes& boxes) const {
  if (!refused_.Empty()) {
    boxes.Show(
        "These files were not added. They are not programs or shortcuts to programs, or their paths are too "
        "long:\r\n\r\n" +
        refused_.Text());
  }
  if (!without_folder_.Empty()) {
    boxes.Show(
        "The launcher cannot use a network folder that has no drive letter. \"Start In:\" was left empty for "
        "these programs:\r\n\r\n" +
        without_folder_.Text());
  }
}

}  // namespace qdix::config_launcher
