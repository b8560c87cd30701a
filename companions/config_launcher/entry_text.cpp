#include "config_launcher/entry_text.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "ui/menu.h"

namespace qdix::config_launcher {

namespace {

constexpr std::array<std::string_view, 4> kProgramExtensions{".exe", ".com", ".bat", ".pif"};

bool HasExtension(std::string_view path, std::string_view extension) {
  return path.size() > extension.size() &&
         base::EqualsIgnoringCase(path.substr(path.size() - extension.size()), extension);
}

bool IsControlCharacter(char character) { return static_cast<unsigned char>(character) < 0x20U; }

/// Returns the number of bytes of the character that begins with this byte.
std::size_t CharacterBytes(os::Files& files, char first_byte) {
  return files.IsDBCSLeadByte(first_byte) ? 2 : 1;
}

/// The parts before and after the last backslash of a path. Without a backslash, the folder is empty.
struct PathParts {
  std::string_view folder;
  std::string_view file;
};

PathParts Split(os::Files& files, std::string_view path) {
  std::size_t file_begin = 0;
  for (std::size_t at = 0; at < path.size(); at += CharacterBytes(files, path[at])) {
    if (path[at] == '\\') file_begin = at + 1;
  }
  if (file_begin == 0) return {.folder = {}, .file = path};
  const std::string_view folder = path.substr(0, file_begin - 1);
  const bool is_root = folder.empty() || folder.back() == ':';
  return {.folder = is_root ? path.substr(0, file_begin) : folder, .file = path.substr(file_begin)};
}

std::string_view WithoutExtension(std::string_view file) {
  const std::size_t dot = file.rfind('.');
  // A name that begins with its only dot has no extension.
  return dot == 0 ? file : file.substr(0, dot);
}

/// Returns as many whole characters as fit the name of an entry.
std::string CutToName(os::Files& files, std::string_view title) {
  std::size_t end = 0;
  while (end < title.size() && end + CharacterBytes(files, title[end]) <= launcher::kNameWidth) {
    end += CharacterBytes(files, title[end]);
  }
  return std::string(title.substr(0, end));
}

}  // namespace

bool HasControlCharacters(std::string_view text) {
  return std::any_of(text.begin(), text.end(), &IsControlCharacter);
}

std::string Cleaned(std::string_view text) {
  std::string cleaned(base::CutAtNul(text));
  std::replace_if(cleaned.begin(), cleaned.end(), &IsControlCharacter, ' ');
  return std::string(base::Trim(cleaned));
}

launcher::LauncherEntry Cleaned(const launcher::LauncherEntry& entry) {
  return {Cleaned(entry.name), Cleaned(entry.path), FolderText(Cleaned(entry.start_in))};
}

std::string CommandLineOf(const std::string& path) {
  return path.find(' ') == std::string::npos ? path : '"' + path + '"';
}

std::string FolderText(std::string_view folder) {
  std::string text(folder);
  std::erase(text, '"');
  return std::string(base::Trim(text));
}

bool HasDriveLetter(std::string_view folder) {
  if (folder.empty()) return true;
  const char letter = base::UpperAscii(folder.substr(0, 1)).front();
  return letter >= 'A' && letter <= 'Z' && folder.substr(1, 1) == ":";
}

bool IsDividingLine(std::string_view name) { return name == ui::MenuItem::kSeparatorCaption; }

bool IsSameEntry(const launcher::LauncherEntry& a, const launcher::LauncherEntry& b) {
  return base::EqualsIgnoringCase(a.name, b.name) && base::EqualsIgnoringCase(a.path, b.path) &&
         base::EqualsIgnoringCase(a.start_in, b.start_in);
}

bool IsProgram(std::string_view path) {
  return std::any_of(kProgramExtensions.begin(), kProgramExtensions.end(),
                     [path](std::string_view extension) { return HasExtension(path, extension); });
}

/// If the title cannot be used as a name, keeps the extension.
launcher::LauncherEntry EntryOfFile(os::Files& files, const std::string& path) {
  const PathParts parts = Split(files, path);
  const std::string_view title = WithoutExtension(parts.file);
  return Cleaned(launcher::LauncherEntry{CutToName(files, IsDividingLine(title) ? parts.file : title),
                                         CommandLineOf(path), std::string(parts.folder)});
}

launcher::LauncherEntry EntryOfShortcut(os::Files& files, const std::string& path,
                                        const os::Shortcut& shortcut) {
  launcher::LauncherEntry entry = EntryOfFile(files, path);
  entry.path = Cleaned(CommandLineOf(shortcut.target) + ' ' + shortcut.arguments);
  const std::string_view folder =
      shortcut.folder.empty() ? Split(files, shortcut.target).folder : shortcut.folder;
  entry.start_in = FolderText(Cleaned(folder));
  return entry;
}

bool IsShortcut(std::string_view path) { return HasExtension(path, ".lnk"); }

bool Fits(const launcher::LauncherEntry& entry) {
  return entry.name.size() <= launcher::kNameWidth && entry.path.size() <= launcher::kPathWidth &&
         entry.start_in.size() <= launcher::kStartInWidth;
}

}  // namespace qdix::config_launcher
