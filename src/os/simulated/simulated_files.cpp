#include "os/simulated/simulated_files.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "base/text.h"

namespace qdix::os::simulated {

namespace {

constexpr std::uint32_t kArchive = 0x20;

using Lines = std::vector<std::string>;

/// Copies as much as fits, and a NUL. Returns the number of characters copied.
std::uint32_t Copy(std::string_view text, char* buffer, std::uint32_t size_bytes) {
  if (size_bytes == 0) return 0;
  const std::size_t length = std::min<std::size_t>(text.size(), size_bytes - 1);
  std::copy_n(text.begin(), length, buffer);
  buffer[length] = '\0';
  return static_cast<std::uint32_t>(length);
}

/// Returns a default text as Windows 95 does: without trailing spaces and control characters.
std::string_view TrimTrailingSpaces(std::string_view text) {
  while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
  return text;
}

/// Splits a text into lines without their line breaks.
Lines LinesOf(const std::string& content) {
  Lines lines;
  std::string line;
  for (const char character : content) {
    if (character == '\n') {
      lines.push_back(line);
      line.clear();
    } else if (character != '\r') {
      line += character;
    }
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

std::string ContentOf(const Lines& lines) {
  std::string content;
  for (const std::string& line : lines) content += line + std::string(base::kLineBreak);
  return content;
}

bool IsHeading(std::string_view line) {
  const std::string_view text = base::Trim(line);
  return !text.empty() && text.front() == '[';
}

bool IsHeadingOf(std::string_view line, std::string_view section) {
  if (!IsHeading(line)) return false;
  const std::string_view text = base::Trim(line);
  return base::EqualsIgnoringCase(text.substr(1, text.find(']') - 1), section);
}

bool IsEntryOf(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  return equals != std::string_view::npos &&
         base::EqualsIgnoringCase(base::Trim(line.substr(0, equals)), key);
}

std::string_view ValueOf(std::string_view line) {
  std::string_view value = base::Trim(line.substr(line.find('=') + 1));
  const bool is_quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return is_quoted ? value.substr(1, value.size() - 2) : value;
}

/// The lines of a section: from the line after its heading up to the next heading.
struct SectionLines {
  std::size_t begin;
  std::size_t end;
};

std::optional<SectionLines> FindSection(const Lines& lines, std::string_view section) {
  for (std::size_t place = 0; place < lines.size(); ++place) {
    if (!IsHeadingOf(lines[place], section)) continue;
    std::size_t end = place + 1;
    while (end < lines.size() && !IsHeading(lines[end])) ++end;
    return SectionLines{place + 1, end};
  }
  return std::nullopt;
}

std::optional<std::size_t> FindEntry(const Lines& lines, const SectionLines& section, std::string_view key) {
  for (std::size_t place = section.begin; place < section.end; ++place) {
    if (IsEntryOf(lines[place], key)) return place;
  }
  return std::nullopt;
}

/// Returns the place after the last line of the section that is not empty.
std::size_t PlaceForNewEntry(const Lines& lines, const SectionLines& section) {
  std::size_t place = section.end;
  while (place > section.begin && base::Trim(lines[place - 1]).empty()) --place;
  return place;
}

void RemoveEntry(Lines& lines, const char* section, const char* key) {
  const auto found = FindSection(lines, section);
  if (!found) return;
  const auto entry = FindEntry(lines, *found, key);
  if (entry) lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*entry));
}

void SetEntry(Lines& lines, const char* section, const char* key, const char* value) {
  const std::string line = std::string(key) + "=" + value;
  const auto found = FindSection(lines, section);
  if (!found) {
    lines.push_back("[" + std::string(section) + "]");
    lines.push_back(line);
    return;
  }
  const auto entry = FindEntry(lines, *found, key);
  if (entry) {
    std::string& old_line = lines[*entry];
    old_line = std::string(base::Trim(old_line.substr(0, old_line.find('=')))) + "=" + value;
    return;
  }
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(PlaceForNewEntry(lines, *found)), line);
}

/// Returns the 8.3 name of a file, assuming that no other file in the folder has a similar name.
std::string DosNameOf(const std::string& upper_path) {
  constexpr std::size_t kNameLength = 8;
  constexpr std::size_t kExtensionLength = 3;
  std::string name = upper_path.substr(upper_path.rfind('\\') + 1);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos) return name;
  const std::string extension = name.substr(dot + 1);
  name.resize(dot);
  if (name.size() <= kNameLength && extension.size() <= kExtensionLength) return name + "." + extension;
  return name.substr(0, kNameLength - 2) + "~1." + extension.substr(0, kExtensionLength);
}

}  // namespace

std::string SimulatedFiles::UpperPath(const std::string& path) { return base::UpperAscii(path); }

std::string SimulatedFiles::ProfilePath(const std::string& file) const {
  if (file.find('\\') != std::string::npos) return UpperPath(file);
  const bool is_root = windows_directory_.ends_with('\\');
  return UpperPath(windows_directory_ + (is_root ? "" : "\\") + file);
}

std::optional<std::string> SimulatedFiles::Read(const std::string& path) const {
  const auto found = files_.find(UpperPath(path));
  if (found == files_.end()) return std::nullopt;
  return found->second;
}

std::uint32_t SimulatedFiles::GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) {
  if (log_.RecordAndFail("GetWindowsDirectoryA", std::to_string(size_bytes))) return 0;
  const auto length = static_cast<std::uint32_t>(windows_directory_.size());
  return length < size_bytes ? Copy(windows_directory_, buffer, size_bytes) : length + 1;
}

bool SimulatedFiles::CopyFileA(const char* from, const char* to) {
  if (log_.RecordAndFail("CopyFileA", std::string(from) + ", " + to)) return false;
  if (kept_.contains(UpperPath(to))) {
    log_.Misuse(std::string("CopyFileA over a profile file that is kept in memory: ") + to);
  }
  const auto content = Read(from);
  const std::string source = UpperPath(from);
  const std::string target = UpperPath(to);
  if (!content || held_.contains(source) || IsProtected(target) || BeginWrite() != Power::kOn) return false;
  Store(target, "");
  if (Put(target, 0, *content) != content->size()) return false;
  changed_days_[target] = changed_days_[source];
  if (read_only_.contains(source)) read_only_.insert(target);
  return true;
}

/// Leaves the file unchanged if the new content does not fit on the disk.
bool SimulatedFiles::WriteWithinFreeBytes(const std::string& upper_path, const std::string& content) {
  const std::size_t before_bytes = Read(upper_path).value_or("").size();
  const std::size_t growth_bytes = content.size() - std::min(content.size(), before_bytes);
  if (growth_bytes > free_bytes_ || BeginWrite() != Power::kOn) return false;
  free_bytes_ -= growth_bytes;
  Store(upper_path, content);
  return true;
}

std::uint32_t SimulatedFiles::GetFileAttributesA(const char* path) {
  if (log_.RecordAndFail("GetFileAttributesA", path)) return kInvalidFileAttributes;
  if (UpperPath(path) == UpperPath(windows_directory_)) return kFileAttributeDirectory;
  if (!Read(path)) return kInvalidFileAttributes;
  return read_only_.contains(UpperPath(path)) ? kFileAttributeReadOnly : kArchive;
}

/// Not recorded: it is called for every byte of a path and cannot fail.
bool SimulatedFiles::IsDBCSLeadByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return is_japanese_ && ((value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC));
}

bool SimulatedFiles::FindFirstFileA(const char* path, FoundFile& found) {
  if (log_.RecordAndFail("FindFirstFileA", path) || !Read(path)) return false;
  found = {.changed_days = changed_days_[UpperPath(path)], .dos_name = DosNameOf(UpperPath(path))};
  return true;
}

std::uint32_t SimulatedFiles::GetPrivateProfileStringA(const char* section, const char* key,
                                                       const char* missing, char* buffer,
                                                       std::uint32_t size_bytes, const char* file) {
  const bool fails =
      log_.RecordAndFail("GetPrivateProfileStringA", std::string(file) + " [" + section + "] " + key);
  kept_.insert(ProfilePath(file));
  const auto content = Read(ProfilePath(file));
  const std::string_view default_text = TrimTrailingSpaces(missing);
  if (fails || !content || held_.contains(ProfilePath(file))) return Copy(default_text, buffer, size_bytes);
  const Lines lines = LinesOf(*content);
  const auto found = FindSection(lines, section);
  const auto entry = found ? FindEntry(lines, *found, key) : std::nullopt;
  return Copy(entry ? ValueOf(lines[*entry]) : default_text, buffer, size_bytes);
}

void SimulatedFiles::Flush(const std::string& file) {
  log_.Record("WritePrivateProfileStringA", file + " flushed");
  kept_.erase(ProfilePath(file));
}

bool SimulatedFiles::WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                                const char* file) {
  if (section == nullptr && key == nullptr && value == nullptr) {
    Flush(file);
    return false;
  }
  const std::string text = value == nullptr ? "removed" : value;
  if (log_.RecordAndFail("WritePrivateProfileStringA",
                         std::string(file) + " [" + section + "] " + key + " " + text)) {
    return false;
  }
  const std::string path = ProfilePath(file);
  kept_.insert(path);
  if (read_only_.contains(path) || held_.contains(path)) return false;
  Lines lines = LinesOf(Read(path).value_or(""));
  if (value == nullptr) {
    RemoveEntry(lines, section, key);
  } else {
    SetEntry(lines, section, key, value);
  }
  return WriteWithinFreeBytes(path, ContentOf(lines));
}

}  // namespace qdix::os::simulated
