#include "tests/e2e/driver/import_redirect.h"

#include <vector>

namespace qdix::e2e {

namespace {

/// Where programs are loaded that say nothing else.
constexpr std::uintptr_t kProgramBegin = 0x400000;

/// The place in the program's image that holds the address of an imported function; null where none does.
void* FindImport(HANDLE process, std::uint32_t function) {
  std::uintptr_t address = kProgramBegin;
  MEMORY_BASIC_INFORMATION region = {};
  while (VirtualQueryEx(process, reinterpret_cast<void*>(address), &region, sizeof region) != 0 &&
         region.State == MEM_COMMIT && region.AllocationBase == reinterpret_cast<void*>(kProgramBegin)) {
    std::vector<std::uint32_t> words(region.RegionSize / sizeof(std::uint32_t));
    ReadProcessMemory(process, region.BaseAddress, words.data(), region.RegionSize, nullptr);
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (words[i] == function) return reinterpret_cast<void*>(address + i * sizeof(std::uint32_t));
    }
    address += region.RegionSize;
  }
  return nullptr;
}

}  // namespace

bool RedirectImport(HANDLE process, std::uint32_t function, std::uint32_t replacement) {
  void* const import = FindImport(process, function);
  if (import == nullptr) return false;
  DWORD protection = 0;
  VirtualProtectEx(process, import, sizeof replacement, PAGE_READWRITE, &protection);
  const bool is_redirected =
      WriteProcessMemory(process, import, &replacement, sizeof replacement, nullptr) != 0;
  VirtualProtectEx(process, import, sizeof replacement, protection, &protection);
  return is_redirected;
}

}  // namespace qdix::e2e
