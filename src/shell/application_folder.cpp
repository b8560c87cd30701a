#include "shell/application_folder.h"

namespace qdix::shell {

namespace {

/// The last backslash is a separator on every Windows: our own file name follows it and has no two-byte
/// characters, whose second byte can look like a backslash.
std::string FolderOf(std::string path) {
  const std::size_t last = path.rfind('\\');
  path.resize(last == std::string::npos ? 0 : last);
  return path + '\\';
}

std::string NameWithoutExtension(const std::string& path) {
  const std::string file = path.substr(path.rfind('\\') + 1);
  return file.substr(0, file.rfind('.'));
}

}  // namespace

std::string ApplicationFolder(os::Processes& processes) { return FolderOf(processes.ModuleFileName()); }

std::string ApplicationFileName(os::Processes& processes) {
  return NameWithoutExtension(processes.ModuleFileName());
}

std::string ProgramPath(os::Processes& processes) {
  const std::string path = processes.ModuleFileName();
  const std::string name = NameWithoutExtension(path);
  return name.empty() ? std::string() : FolderOf(path) + name + ".exe";
}

}  // namespace qdix::shell
