#include "tests/e2e/driver/played_memory.h"

#include <cstddef>
#include <cstring>
#include <vector>

namespace qdix::e2e {

namespace {

/// Where the figure is kept in the page, behind the code.
constexpr std::uint32_t kFigureOffset = 256;
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

/// Asks the system, then writes the figure at `figure` over its answer.
std::string AnswerWithFigure(std::uint32_t ask_system, std::uint32_t figure) {
  static_assert(offsetof(MEMORYSTATUS, dwAvailPhys) == 12);
  MachineCode code;
  code.Bytes("\xFF\x74\x24\x04");                           // push the caller's record
  code.Bytes("\xB8").Number(ask_system).Bytes("\xFF\xD0");  // mov eax; call eax
  code.Bytes("\x8B\x44\x24\x04\x8B\x0D").Number(figure);    // eax = record, ecx = figure
  code.Bytes("\x89\x48\x0C").Bytes({'\xC2', 4, 0});         // record + 12 = ecx; ret 4
  return code.Text();
}

}  // namespace

bool PlayedMemory::Play(std::uint32_t available_bytes) {
  return page_.Write(kFigureOffset, MachineCode().Number(available_bytes).Text()) &&
         (is_redirected_ || Redirect());
}

bool PlayedMemory::Redirect() {
  const std::uint32_t ask_system = SystemFunction("kernel32.dll", "GlobalMemoryStatus");
  void* const import = FindImport(process_, ask_system);
  if (import == nullptr || !page_.Write(0, AnswerWithFigure(ask_system, page_.At(kFigureOffset))))
    return false;
  const std::uint32_t ours = page_.At(0);
  DWORD protection = 0;
  VirtualProtectEx(process_, import, sizeof ours, PAGE_READWRITE, &protection);
  is_redirected_ = WriteProcessMemory(process_, import, &ours, sizeof ours, nullptr) != 0;
  VirtualProtectEx(process_, import, sizeof ours, protection, &protection);
  return is_redirected_;
}

}  // namespace qdix::e2e
