// The program looks the function up by name at run time instead of importing it. So the first bytes of the
// function itself, of which each process has its own copy, are replaced with a jump.
#include "tests/e2e/driver/fake_disk.h"

namespace qdix::e2e {

namespace {

/// Offset of the figure in the page, behind the code.
constexpr std::uint32_t kFigureOffset = 256;
constexpr std::uint32_t kJumpBytes = 5;

/// Writes the figure to all three result pointers and returns TRUE.
std::string AnswerWithFigure(std::uint32_t figure) {
  MachineCode code;
  code.Bytes("\x8B\x0D").Number(figure);      // ecx = lower half
  code.Bytes("\x8B\x15").Number(figure + 4);  // edx = upper half
  for (const char argument : {'\x08', '\x0C', '\x10'}) {
    code.Bytes("\x8B\x44\x24").Bytes({argument});        // eax = pointer
    code.Bytes({'\x89', 8}).Bytes({'\x89', '\x50', 4});  // [eax] = ecx; [eax + 4] = edx
  }
  code.Bytes("\xB8").Number(TRUE).Bytes({'\xC2', 16, 0});  // eax = TRUE; ret 16
  return code.Text();
}

}  // namespace

bool FakeDisk::Play(std::uint64_t free_bytes) {
  const std::string figure = MachineCode()
                                 .Number(static_cast<std::uint32_t>(free_bytes))
                                 .Number(static_cast<std::uint32_t>(free_bytes >> 32U))
                                 .Text();
  return page_.Write(kFigureOffset, figure) && (is_redirected_ || Redirect());
}

bool FakeDisk::Redirect() {
  const std::uint32_t function = SystemFunction("kernel32.dll", "GetDiskFreeSpaceExA");
  const std::string jump = MachineCode().Bytes("\xE9").Number(page_.At(0) - (function + kJumpBytes)).Text();
  is_redirected_ =
      page_.Write(0, AnswerWithFigure(page_.At(kFigureOffset))) && Overwrite(process_, function, jump);
  return is_redirected_;
}

}  // namespace qdix::e2e
