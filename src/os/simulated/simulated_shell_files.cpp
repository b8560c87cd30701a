#include "os/simulated/simulated_shell_files.h"

#include <sstream>

namespace qdix::os::simulated {

namespace {

/// First line of a file that represents a shortcut. Target, arguments and folder follow, one per line.
constexpr const char* kShortcutMark = "shortcut";

std::string FileOf(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

std::string WithBackslash(const std::string& folder) {
  return folder.ends_with('\\') ? folder : folder + '\\';
}

/// Shows NULs as "|" in the call log.
std::string Shown(std::string list) {
  for (char& character : list) character = character == '\0' ? '|' : character;
  return list;
}

}  // namespace

void SimulatedShellFiles::Put(const std::string& path, const Shortcut& shortcut) {
  files_.Write(path, std::string(kShortcutMark) + '\n' + shortcut.target + '\n' + shortcut.arguments + '\n' +
                         shortcut.folder + '\n');
}

std::optional<Shortcut> SimulatedShellFiles::At(const std::string& path) const {
  std::istringstream lines(files_.Read(path).value_or(""));
  std::string mark;
  Shortcut shortcut;
  std::getline(lines, mark);
  std::getline(lines, shortcut.target);
  std::getline(lines, shortcut.arguments);
  std::getline(lines, shortcut.folder);
  if (mark != kShortcutMark || shortcut.target.empty()) return std::nullopt;
  return shortcut;
}

std::string SimulatedShellFiles::SpecialFolder(int number) {
  if (log_.RecordAndFail("SpecialFolder", std::to_string(number))) return {};
  const auto found = folders_.find(number);
  return found == folders_.end() ? std::string() : found->second;
}

std::vector<std::string> SimulatedShellFiles::NamesOf(const std::string& list) {
  std::vector<std::string> names;
  std::size_t begin = 0;
  for (std::size_t end = list.find('\0'); end != std::string::npos && end != begin;
       end = list.find('\0', begin)) {
    names.push_back(list.substr(begin, end - begin));
    begin = end + 1;
  }
  // The NUL that ends the list must be its last byte.
  if (begin + 1 != list.size()) log_.Misuse("a list of names without its end: " + Shown(list));
  return names;
}

bool SimulatedShellFiles::Rename(const std::vector<std::string>& from, const std::vector<std::string>& to) {
  if (from.size() != 1 || to.size() != 1) return false;
  const auto content = files_.Read(from.front());
  if (!content || files_.Read(to.front())) return false;
  files_.Write(to.front(), *content);
  return files_.Erase(from.front());
}

/// Copies into a folder and replaces existing files.
bool SimulatedShellFiles::Copy(const std::vector<std::string>& from, const std::vector<std::string>& to) {
  if (to.size() != 1) return false;
  for (const std::string& path : from) {
    const auto content = files_.Read(path);
    if (!content) return false;
    files_.Write(WithBackslash(to.front()) + FileOf(path), *content);
  }
  return true;
}

bool SimulatedShellFiles::SHFileOperationA(std::uint32_t operation, const std::string& from,
                                           const std::string& to, std::uint16_t flags) {
  const std::vector<std::string> sources = NamesOf(from);
  const std::vector<std::string> targets = NamesOf(to);
  if (log_.RecordAndFail("SHFileOperationA", std::to_string(operation) + ", " + Shown(from) + ", " +
                                                 Shown(to) + ", " + std::to_string(flags))) {
    return false;
  }
  if (operation == kFoRename) return Rename(sources, targets);
  return operation == kFoCopy && Copy(sources, targets);
}

void SimulatedShellFiles::SHAddToRecentDocs(std::uint32_t kind, const std::string& path) {
  if (log_.RecordAndFail("SHAddToRecentDocs", std::to_string(kind) + ", " + path)) return;
  if (!makes_recent_shortcuts_ || folders_[kRecentFolder].empty()) return;
  Put(WithBackslash(folders_[kRecentFolder]) + FileOf(path) + ".lnk",
      {.target = path, .arguments = {}, .folder = {}});
}

std::optional<Shortcut> SimulatedShellFiles::ReadShortcut(const std::string& path) {
  if (log_.RecordAndFail("ReadShortcut", path)) return std::nullopt;
  return At(path);
}

bool SimulatedShellFiles::WriteShortcut(const std::string& path, const Shortcut& shortcut) {
  if (log_.RecordAndFail("WriteShortcut", path + ", " + shortcut.target)) return false;
  Put(path, shortcut);
  return true;
}

}  // namespace qdix::os::simulated
