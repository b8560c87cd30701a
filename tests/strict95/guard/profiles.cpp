// Windows 95 keeps changes to an INI file in memory until they are flushed or another INI file is used. Until
// then the file on the disk has its old contents. The guard does the same: it lets the program change and
// read a copy, and copies that back.
#include <array>
#include <string>

#include "tests/strict95/guard/lower_case.h"
#include "tests/strict95/guard/rules.h"

namespace qdix::strict95 {

namespace {

constexpr unsigned kWrittenFile = 4;
constexpr unsigned kReadFile = 6;

/// The INI file with changes in memory only, and the copy that has them.
struct Cache {
  /// Full path in lower case; empty if there are no such changes.
  std::string file;
  std::string copy;
};

Cache& TheCache() {
  static Cache cache;
  return cache;
}

/// Returns the full path in lower case. An INI file without a folder is in the Windows folder; other files
/// are in the current one.
std::string FullPath(const char* name, bool is_profile) {
  std::array<char, MAX_PATH> path{};
  if (name == nullptr) return {};
  if (is_profile && std::string(name).find_first_of("\\/:") == std::string::npos) {
    GetWindowsDirectoryA(path.data(), path.size());
    const std::string in_windows = path.data() + ("\\" + std::string(name));
    GetFullPathNameA(in_windows.c_str(), path.size(), path.data(), nullptr);
  } else {
    GetFullPathNameA(name, path.size(), path.data(), nullptr);
  }
  return LowerCase(path.data());
}

bool IsThere(const std::string& path) { return GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

/// True for a missing file, too.
bool CanWrite(const std::string& path) {
  if (!IsThere(path)) return true;
  HANDLE const file = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

void WriteBack() {
  Cache& cache = TheCache();
  if (cache.file.empty()) return;
  CopyFileA(cache.copy.c_str(), cache.file.c_str(), FALSE);
  DeleteFileA(cache.copy.c_str());
  cache.file.clear();
}

/// Begins a copy. A file that cannot be written gets none, so that the system itself refuses.
void BeginCopy(const std::string& path) {
  std::array<char, MAX_PATH> folder{};
  GetTempPathA(folder.size(), folder.data());
  Cache& cache = TheCache();
  cache.copy = folder.data() + Format("strict%lu.ini", GetCurrentProcessId());
  DeleteFileA(cache.copy.c_str());
  if (!CanWrite(path) || (IsThere(path) && CopyFileA(path.c_str(), cache.copy.c_str(), FALSE) == 0)) return;
  cache.file = path;
}

/// Makes the call use the copy of its file, if that has one.
void UseCopy(Call& call, unsigned argument, const std::string& path) {
  if (TheCache().file != path) return;
  call.arguments[argument - 1] =
      static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(TheCache().copy.c_str()));
}

void Write(Call& call) {
  const std::string path = FullPath(call.Argument<const char*>(kWrittenFile), true);
  const bool is_flush = call.Argument(1) == 0 && call.Argument(2) == 0 && call.Argument(3) == 0;
  if (is_flush || TheCache().file != path) WriteBack();
  if (is_flush) return;
  if (TheCache().file.empty()) BeginCopy(path);
  UseCopy(call, kWrittenFile, path);
}

void Read(Call& call) {
  const std::string path = FullPath(call.Argument<const char*>(kReadFile), true);
  if (TheCache().file != path) WriteBack();
  UseCopy(call, kReadFile, path);
}

void CheckFlushed(const Call& call) {
  const std::string& file = TheCache().file;
  if (file.empty() || FullPath(call.Argument<const char*>(1), false) != file) return;
  Report(call, Rule::kProfileCache, file.substr(file.rfind('\\') + 1) + " is not flushed yet");
}

}  // namespace

void AddProfileRules(Watches& watches) {
  watches.Before("WritePrivateProfileStringA", &Write);
  watches.Before("GetPrivateProfileStringA", &Read);
  for (const char* const function :
       {"CopyFileA", "CreateFileA", "MoveFileA", "DeleteFileA", "FindFirstFileA", "GetFileAttributesA"}) {
    watches.Before(function, &CheckFlushed);
  }
  // An orderly shutdown writes the changes. After the end of the program the system still has them, and
  // writes them later.
  for (const char* const function : {"ExitWindowsEx", "ExitProcess"}) {
    watches.Before(function, [](Call& /*call*/) { WriteBack(); });
  }
}

}  // namespace qdix::strict95
