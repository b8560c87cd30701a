#include "shell/application_folder.h"

namespace qdix::shell {

std::string ApplicationFolder(os::Processes& processes) {
  std::string folder = processes.ModuleFileName();
  const std::size_t last = folder.rfind('\\');
  folder.resize(last == std::string::npos ? 0 : last);
  return folder + '\\';
}

std::string ApplicationFileName(os::Processes& processes) {
  const std::string path = processes.ModuleFileName();
  const std::string file = path.substr(path.rfind('\\') + 1);
  return file.substr(0, file.rfind('.'));
}

std::string ProgramPath(os::Processes& processes) {
  const std::string name = ApplicationFileName(processes);
  return name.empty() ? std::string() : ApplicationFolder(processes) + name + ".exe";
}

}  // namespace qdix::shell
