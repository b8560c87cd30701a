#include "shell/application_folder.h"

namespace qdix::shell {

std::string ApplicationFolder(os::Processes& processes) {
  std::string folder = processes.ModuleFileName();
  const std::size_t last = folder.rfind('\\');
  folder.resize(last == std::string::npos ? 0 : last);
  return folder + '\\';
}

}  // namespace qdix::shell
