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

std::string TitleOfFile(std::string_view path) {
  const std::string_view file = path.substr(path.rfind('\\') + 1);
  const std::size_t dot = file.rfind('.');
  // A name that begins with its only dot is no extension.
  return std::string(dot == 0 ? file : file.substr(0, dot));
}

std::string FolderOfFile(std::string_view path) {
  const std::size_t backslash = path.rfind('\\');
  if (backslash == std::string_view::npos) return {};
  const std::string_view folder = path.substr(0, backslash);
  const bool is_root = folder.empty() || folder.back() == ':';
  return std::string(is_root ? path.substr(0, backslash + 1) : folder);
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

/// A file whose title cannot be a name keeps its extension.
launcher::LauncherEntry EntryOfFile(const std::string& path) {
  std::string title = TitleOfFile(path);
  if (IsDividingLine(title)) title = path.substr(path.rfind('\\') + 1);
  title.resize(std::min(title.size(), launcher::kNameWidth));
  return Cleaned(launcher::LauncherEntry{title, CommandLineOf(path), FolderOfFile(path)});
}

launcher::LauncherEntry EntryOfShortcut(const std::string& path, const os::Shortcut& shortcut) {
  launcher::LauncherEntry entry = EntryOfFile(path);
  entry.path = Cleaned(CommandLineOf(shortcut.target) + ' ' + shortcut.arguments);
  const std::string folder = shortcut.folder.empty() ? FolderOfFile(shortcut.target) : shortcut.folder;
  entry.start_in = FolderText(Cleaned(folder));
  return entry;
}

bool IsShortcut(std::string_view path) { return HasExtension(path, ".lnk"); }

bool Fits(const launcher::LauncherEntry& entry) {
  return entry.name.size() <= launcher::kNameWidth && entry.path.size() <= launcher::kPathWidth &&
         entry.start_in.size() <= launcher::kStartInWidth;
}

}  // namespace qdix::config_launcher
