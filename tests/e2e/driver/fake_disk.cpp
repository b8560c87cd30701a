// The program looks the extended function up by name at run time instead of importing it. So the first bytes
// of the functions themselves, of which each process has its own copy, are replaced with jumps.
#include "tests/e2e/driver/fake_disk.h"

#include <algorithm>

#include "tests/strict95/machine.h"

namespace qdix::e2e {

namespace {

/// Offsets in the page.
constexpr std::uint32_t kExtendedCode = 0;
constexpr std::uint32_t kClassicCode = 128;
constexpr std::uint32_t kBytesFigure = 256;
constexpr std::uint32_t kClustersFigure = 264;
constexpr std::uint32_t kJumpBytes = 5;

/// Clusters of 2 KB: megabytes of 1,024,000 bytes have a whole number of them.
constexpr std::uint32_t kBytesPerSector = 512;
constexpr std::uint32_t kSectorsPerCluster = 4;

/// Writes the figure to all three result pointers and returns TRUE.
std::string AnswerWithBytes(std::uint32_t figure) {
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

/// Writes the size of sectors and clusters, and the figure to the last two result pointers, and returns TRUE.
std::string AnswerWithClusters(std::uint32_t figure) {
  MachineCode code;
  code.Bytes("\x8B\x44\x24\x08\xC7").Bytes({0}).Number(kSectorsPerCluster);  // eax = pointer; [eax] = number
  code.Bytes("\x8B\x44\x24\x0C\xC7").Bytes({0}).Number(kBytesPerSector);
  code.Bytes("\x8B\x0D").Number(figure);  // ecx = figure
  for (const char argument : {'\x10', '\x14'}) {
    code.Bytes("\x8B\x44\x24").Bytes({argument, '\x89', 8});  // eax = pointer; [eax] = ecx
  }
  code.Bytes("\xB8").Number(TRUE).Bytes({'\xC2', 20, 0});  // eax = TRUE; ret 20
  return code.Text();
}

}  // namespace

bool FakeDisk::Play(std::uint64_t free_bytes) {
  const std::uint64_t classic_bytes = std::min<std::uint64_t>(free_bytes, strict95::kMaxClassicDiskBytes);
  const std::string bytes = MachineCode()
                                .Number(static_cast<std::uint32_t>(free_bytes))
                                .Number(static_cast<std::uint32_t>(free_bytes >> 32U))
                                .Text();
  const std::string clusters =
      MachineCode()
          .Number(static_cast<std::uint32_t>(classic_bytes / (kBytesPerSector * kSectorsPerCluster)))
          .Text();
  return page_.Write(kBytesFigure, bytes) && page_.Write(kClustersFigure, clusters) &&
         (is_redirected_ || RedirectBoth());
}

bool FakeDisk::RedirectBoth() {
  is_redirected_ = Redirect("GetDiskFreeSpaceExA", kExtendedCode, AnswerWithBytes(page_.At(kBytesFigure))) &&
                   Redirect("GetDiskFreeSpaceA", kClassicCode, AnswerWithClusters(page_.At(kClustersFigure)));
  return is_redirected_;
}

bool FakeDisk::Redirect(const char* name, std::uint32_t offset, const std::string& code) const {
  const std::uint32_t function = SystemFunction("kernel32.dll", name);
  const std::string jump =
      MachineCode().Bytes("\xE9").Number(page_.At(offset) - (function + kJumpBytes)).Text();
  return page_.Write(offset, code) && Overwrite(process_, function, jump);
}

}  // namespace qdix::e2e
