#include "tests/e2e/supervisor/machine_state.h"

#include <array>

#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/program_facts.h"

namespace qdix::e2e {

MachineState::MachineState() : files_(FilesBesideThePrograms()) {}

MachineState::Files MachineState::FilesBesideThePrograms() {
  constexpr std::array<const char*, 6> kKinds{"*.exe", "*.htm", "*.dat", "*.bak", "*.tmp", "*.log"};
  Files files;
  for (const char* const kind : kKinds) {
    WIN32_FIND_DATAA found = {};
    const HANDLE search = FindFirstFileA(ProgramPath(kind).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) continue;
    do {
      const std::string path = ProgramPath(found.cFileName);
      if (const auto bytes = FileBytes(path)) files[path] = *bytes;
    } while (FindNextFileA(search, &found) != 0);
    FindClose(search);
  }
  return files;
}

void MachineState::PutBack() const {
  registry_.PutBack();
  system_.PutBack();
  const Files now = FilesBesideThePrograms();
  for (const auto& [path, bytes] : now) {
    if (!files_.contains(path)) SetFileBytes(path, std::nullopt);
  }
  for (const auto& [path, bytes] : files_) {
    const auto found = now.find(path);
    if (found == now.end() || found->second != bytes) SetFileBytes(path, bytes);
  }
}

}  // namespace qdix::e2e
