#include "tests/e2e/driver/import_redirect.h"

#include <psapi.h>

#include <array>
#include <string_view>
#include <vector>

#include "tests/e2e/driver/inside_process.h"

namespace qdix::e2e {

namespace {

/// Default load address of a program.
constexpr std::uintptr_t kProgramBegin = 0x400000;

/// Returns the places in an image of the process that hold the address of a function.
std::vector<std::uintptr_t> PlacesOf(HANDLE process, std::uintptr_t image, std::uint32_t function) {
  std::vector<std::uintptr_t> places;
  std::uintptr_t address = image;
  MEMORY_BASIC_INFORMATION region = {};
  while (VirtualQueryEx(process, reinterpret_cast<void*>(address), &region, sizeof region) != 0 &&
         region.State == MEM_COMMIT && region.AllocationBase == reinterpret_cast<void*>(image)) {
    std::vector<std::uint32_t> words(region.RegionSize / sizeof(std::uint32_t));
    ReadProcessMemory(process, region.BaseAddress, words.data(), region.RegionSize, nullptr);
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (words[i] == function) places.push_back(address + i * sizeof(std::uint32_t));
    }
    address += region.RegionSize;
  }
  return places;
}

/// Returns the address of the guard in a strict copy; 0 in a program as shipped.
std::uintptr_t GuardOf(HANDLE process) {
  constexpr std::string_view kGuard = "Guard.dll";
  std::array<HMODULE, 256> modules{};
  DWORD bytes = 0;
  if (EnumProcessModules(process, modules.data(), sizeof modules, &bytes) == 0) return 0;
  for (std::size_t i = 0; i < bytes / sizeof(HMODULE) && i < modules.size(); ++i) {
    std::array<char, MAX_PATH> name{};
    GetModuleBaseNameA(process, modules[i], name.data(), static_cast<DWORD>(name.size()));
    if (name.data() == kGuard) return reinterpret_cast<std::uintptr_t>(modules[i]);
  }
  return 0;
}

}  // namespace

bool RedirectImport(HANDLE process, std::uint32_t function, std::uint32_t replacement) {
  std::vector<std::uintptr_t> places = PlacesOf(process, kProgramBegin, function);
  // A strict copy imports the guard, and that has the addresses of the system.
  const std::uintptr_t guard = places.empty() ? GuardOf(process) : 0;
  if (guard != 0) places = PlacesOf(process, guard, function);
  bool is_redirected = !places.empty();
  for (const std::uintptr_t place : places) {
    is_redirected = Overwrite(process, place, MachineCode().Number(replacement).Text()) && is_redirected;
  }
  return is_redirected;
}

}  // namespace qdix::e2e
