#include "shell/application_folder.h"

namespace qdix::shell {

namespace {

/// The last backslash is one on every Windows: behind it is the name of our own file, without characters of
/// two bytes, whose second may look like it.
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
