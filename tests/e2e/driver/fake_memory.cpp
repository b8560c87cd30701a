#include "tests/e2e/driver/fake_memory.h"

#include <cstddef>

#include "tests/e2e/driver/import_redirect.h"

namespace qdix::e2e {

namespace {

/// Offset of the figure in the page, behind the code.
constexpr std::uint32_t kFigureOffset = 256;
/// Calls the system, then overwrites its result with the figure at `figure`.
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

bool FakeMemory::SetAvailable(std::uint32_t available_bytes) {
  return page_.Write(kFigureOffset, MachineCode().Number(available_bytes).Text()) &&
         (is_redirected_ || Redirect());
}

bool FakeMemory::Redirect() {
  const std::uint32_t ask_system = SystemFunction("kernel32.dll", "GlobalMemoryStatus");
  is_redirected_ = page_.Write(0, AnswerWithFigure(ask_system, page_.At(kFigureOffset))) &&
                   RedirectImport(process_, ask_system, page_.At(0));
  return is_redirected_;
}

}  // namespace qdix::e2e
