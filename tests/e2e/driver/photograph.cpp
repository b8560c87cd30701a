// A Windows program under Wine can start a program of the host by its path.
#include "tests/e2e/driver/photograph.h"

// clang-format off
#include <windows.h>
// clang-format on

#include "tests/e2e/driver/polling.h"

namespace qdix::e2e {

bool Photograph(const std::string& name) {
  const std::string file = std::string(QDIX_SOURCE_DIR) + "/build/photos/" + name + ".png";
  const std::string file_in_windows = "Z:" + file;
  std::string command_line = "Z:\\bin\\sh -c \"'" + std::string(QDIX_SOURCE_DIR) +
                             "/tools/desktop/desktop.sh' photo '" + file + "'\"";
  STARTUPINFOA startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started = {};
  DeleteFileA(file_in_windows.c_str());
  if (CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &started) == 0) {
    return false;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  // Wine does not wait for programs of the host. The file gets its name when it is complete.
  return Eventually([&] { return GetFileAttributesA(file_in_windows.c_str()) != INVALID_FILE_ATTRIBUTES; });
}

}  // namespace qdix::e2e
