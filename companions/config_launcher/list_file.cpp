#include "config_launcher/list_file.h"

#include "config_launcher/entry_text.h"
#include "shell/application_folder.h"

namespace qdix::config_launcher {

namespace {

using launcher::LauncherEntry;

bool IsUnclean(const LauncherEntry& entry) {
  return HasControlCharacters(entry.name) || HasControlCharacters(entry.path) ||
         HasControlCharacters(entry.start_in);
}

void TakeContent(const std::string& content, FoundList& found) {
  found.is_cut = content.size() > kMaxBytes;
  found.has_odd_length = !found.is_cut && content.size() % launcher::kRecordBytes != 0;
  for (const LauncherEntry& entry : launcher::ReadRecords(std::string_view(content).substr(0, kMaxBytes))) {
    found.has_control_characters = found.has_control_characters || IsUnclean(entry);
    found.entries.push_back(Cleaned(entry));
    const LauncherEntry& shown = found.entries.back();
    found.has_incomplete_entries = found.has_incomplete_entries || shown.name.empty() || shown.path.empty();
  }
}

}  // namespace

ListFile::ListFile(const ConfigSystem& system) : files_(system.files) {
  const std::string folder = shell::ApplicationFolder(system.processes);
  list_ = folder + launcher::kLauncherFileName;
  backup_ = folder + "launcher.bak";
  temporary_ = folder + "launcher.tmp";
}

bool ListFile::Exists(const std::string& path) {
  return files_.GetFileAttributesA(path.c_str()) != os::kInvalidFileAttributes;
}

/// On a full disk, an interrupted save leaves an empty list and a copy.
FoundList ListFile::Read() {
  FoundList found;
  constexpr std::uint32_t kOneMore = kMaxBytes + 1;
  const std::optional<std::string> content = launcher::ReadWholeFile(files_, list_, kOneMore);
  if (content.has_value() && !content->empty()) {
    TakeContent(*content, found);
    return found;
  }
  found.is_readable = content.has_value() || !Exists(list_);
  if (!found.is_readable) return found;
  const std::optional<std::string> copy = launcher::ReadWholeFile(files_, backup_, kOneMore);
  found.is_readable = copy.has_value() || !Exists(backup_);
  if (!copy.has_value() || copy->empty()) return found;
  found.is_from_backup = true;
  TakeContent(*copy, found);
  return found;
}

Saved ListFile::Write(const std::vector<LauncherEntry>& entries) {
  std::string content;
  for (const LauncherEntry& entry : entries) content += launcher::RecordBytes(entry);
  const Saved saved =
      entries.size() <= launcher::kMaxEntries && WriteTemporary(content) ? Replace() : Saved::kNo;
  if (saved != Saved::kYes) files_.DeleteFileA(temporary_.c_str());
  return saved;
}

bool ListFile::WriteTemporary(const std::string& content) {
  const os::FileHandle file = files_.CreateFileA(temporary_.c_str(), os::kGenericWrite, os::kCreateAlways);
  if (file == os::kInvalidFile) return false;
  std::uint32_t written_bytes = 0;
  const auto size_bytes = static_cast<std::uint32_t>(content.size());
  const bool is_written =
      files_.WriteFile(file, content.data(), size_bytes, written_bytes) && files_.FlushFileBuffers(file);
  files_.CloseHandle(file);
  return is_written;
}

/// Renames files in such an order that a complete list exists at every moment. After an interrupted save the
/// copy is that list; it stays until the new list has its name.
Saved ListFile::Replace() {
  const std::uint32_t attributes = files_.GetFileAttributesA(list_.c_str());
  const bool has_copy = Exists(backup_);
  bool is_renamed = false;
  if (attributes != os::kInvalidFileAttributes) {
    const std::optional<std::string> beginning = launcher::ReadWholeFile(files_, list_, 1);
    const bool is_protected = (attributes & os::kFileAttributeReadOnly) != 0;
    if (is_protected || !beginning.has_value()) return Saved::kNo;
    if (beginning->empty() && has_copy) {
      if (!files_.DeleteFileA(list_.c_str())) return Saved::kNo;
    } else {
      // if the copy cannot be deleted, the next rename fails
      if (has_copy) files_.DeleteFileA(backup_.c_str());
      if (!files_.MoveFileA(list_.c_str(), backup_.c_str())) return Saved::kNo;
      is_renamed = true;
    }
  }
  if (!files_.MoveFileA(temporary_.c_str(), list_.c_str())) {
    const bool is_back = !is_renamed || files_.MoveFileA(backup_.c_str(), list_.c_str());
    return is_back ? Saved::kNo : Saved::kNoAndRenamed;
  }
  if (is_renamed || has_copy) files_.DeleteFileA(backup_.c_str());
  return Saved::kYes;
}

}  // namespace qdix::config_launcher
