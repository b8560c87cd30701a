#include "tests/e2e/driver/dropped_files.h"

#include "tests/e2e/driver/inside_process.h"

// clang-format off
#include <shlobj.h>
// clang-format on

namespace qdix::e2e {

/// The list must be in the memory of the program, which frees it.
bool DropFiles(const ShippedProgram& program, const std::vector<std::string>& paths) {
  DROPFILES heading{};
  heading.pFiles = sizeof heading;
  std::string bytes(reinterpret_cast<const char*>(&heading), sizeof heading);
  for (const std::string& path : paths) bytes += path + '\0';
  bytes += '\0';
  const auto memory = CallInside(program.Process(), SystemFunction("kernel32.dll", "GlobalAlloc"),
                                 {GMEM_FIXED, static_cast<std::uint32_t>(bytes.size())});
  if (!memory || *memory == 0) return false;
  auto* const place = reinterpret_cast<void*>(static_cast<std::uintptr_t>(*memory));
  return WriteProcessMemory(program.Process(), place, bytes.data(), bytes.size(), nullptr) != 0 &&
         PostMessageA(program.MainWindow(), WM_DROPFILES, *memory, 0) != 0;
}

}  // namespace qdix::e2e
