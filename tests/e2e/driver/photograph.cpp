// Pictures of the screen. A Windows program under Wine can start a program of the host by its path.
#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

bool Photograph(const std::string& name) {
  const std::string folder = std::string(QDIX_SOURCE_DIR) + "/build/photos";
  const std::string script = std::string(QDIX_SOURCE_DIR) + "/tools/desktop/desktop.sh";
  std::string command_line = "Z:\\bin\\sh -c \"mkdir -p '" + folder + "' && '" + script + "' photo '" +
                             folder + "/" + name + ".png'\"";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  const std::string file = "Z:" + folder + "/" + name + ".png";
  DeleteFileA(file.c_str());
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  // Wine does not wait for programs of the host; the file is the sign that it has been.
  return Eventually([&file] { return GetFileAttributesA(file.c_str()) != INVALID_FILE_ATTRIBUTES; }, 15000);
}

}  // namespace qdix::e2e
