#include "config_launcher/entry_text.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::config_launcher {

namespace {

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
  return {Cleaned(entry.name), Cleaned(entry.path), Cleaned(entry.start_in)};
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

launcher::LauncherEntry EntryOfFile(const std::string& path) {
  const std::string title = TitleOfFile(path).substr(0, launcher::kNameWidth);
  return Cleaned(launcher::LauncherEntry{title, CommandLineOf(path), FolderOfFile(path)});
}

launcher::LauncherEntry EntryOfShortcut(const std::string& path, const os::Shortcut& shortcut) {
  launcher::LauncherEntry entry = EntryOfFile(path);
  entry.path = Cleaned(CommandLineOf(shortcut.target) + ' ' + shortcut.arguments);
  entry.start_in = Cleaned(shortcut.folder.empty() ? FolderOfFile(shortcut.target) : shortcut.folder);
  return entry;
}

bool IsShortcut(std::string_view path) {
  constexpr std::string_view kExtension = ".lnk";
  return path.size() > kExtension.size() &&
         base::EqualsIgnoringCase(path.substr(path.size() - kExtension.size()), kExtension);
}

bool Fits(const launcher::LauncherEntry& entry) {
  return entry.name.size() <= launcher::kNameWidth && entry.path.size() <= launcher::kPathWidth &&
         entry.start_in.size() <= launcher::kStartInWidth;
}

}  // namespace qdix::config_launcher
