// Queries about drives, and about files on a drive without a disk.
#include <array>
#include <cctype>
#include <cstdlib>
#include <cstring>

#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

/// Drive queries need a root path that ends with a backslash.
void CheckRoot(Call& call) {
  const char* const root = call.Argument<const char*>(1);
  if (root == nullptr || (root[0] != '\0' && root[std::strlen(root) - 1] == '\\')) return;
  Report(call, Rule::kDrives, Format("asks for \"%s\" without the backslash", root));
  call.Refuse(0);
}

/// True for a path on the drive that is never ready. QDIX_STRICT_EMPTY_DRIVE holds its letter.
bool IsOnEmptyDrive(const char* path) {
  const char* const empty = std::getenv("QDIX_STRICT_EMPTY_DRIVE");
  return empty != nullptr && path != nullptr && std::toupper(path[0]) == std::toupper(empty[0]) &&
         path[1] == ':';
}

/// Without SEM_FAILCRITICALERRORS the system shows its own message box before the call returns.
void CheckReady(Call& call, unsigned argument, std::uint32_t failure) {
  if (!IsOnEmptyDrive(call.Argument<const char*>(argument))) return;
  const UINT mode = SetErrorMode(0);
  SetErrorMode(mode);
  if ((mode & SEM_FAILCRITICALERRORS) == 0) {
    Report(call, Rule::kDrives, "asks a drive that is not ready without an error mode");
  }
  call.Refuse(failure);
}

struct DriveQuestion {
  const char* function;
  unsigned path;
  std::uint32_t failure;
};

constexpr DriveQuestion kQuestions[] = {
    {"GetDiskFreeSpaceA", 1, 0},       {"GetDiskFreeSpaceExA", 1, 0},
    {"GetVolumeInformationA", 1, 0},   {"GetFileAttributesA", 1, 0xFFFFFFFF},
    {"FindFirstFileA", 1, 0xFFFFFFFF}, {"CreateFileA", 1, 0xFFFFFFFF},
    {"SetCurrentDirectoryA", 1, 0},    {"ShellExecuteA", 3, ERROR_FILE_NOT_FOUND},
    {"CreateDirectoryA", 1, 0},        {"DeleteFileA", 1, 0},
};

}  // namespace

void AddDriveRules(Watches& watches) {
  for (const char* const function :
       {"GetDiskFreeSpaceA", "GetDiskFreeSpaceExA", "GetVolumeInformationA", "GetDriveTypeA"}) {
    watches.Before(function, &CheckRoot);
  }
  for (const DriveQuestion& row : kQuestions) {
    watches.Before(row.function, [&row](Call& call) { CheckReady(call, row.path, row.failure); });
  }
}

}  // namespace qdix::strict95
