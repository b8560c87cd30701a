#include "os/win32/win32_processes.h"

#include <array>

#include "os/win32/suppressed_disk_errors.h"

namespace qdix::os::win32 {

namespace {

/// True if the program is on a drive without a disk. The system would otherwise ask for a disk in a message
/// box of its own before it failed.
bool IsOnEmptyDrive(const std::string& command_line) {
  const std::size_t begin = command_line.find_first_not_of(" \"");
  if (begin == std::string::npos || command_line.substr(begin + 1, 2) != ":\\") return false;
  const SuppressedDiskErrors quiet;
  return GetFileAttributesA(command_line.substr(begin, 3).c_str()) == INVALID_FILE_ATTRIBUTES &&
         GetLastError() == ERROR_NOT_READY;
}

}  // namespace

static_assert(kErrorNotReady == ERROR_NOT_READY);

bool Win32Processes::MutexExistedBefore(const char* name) {
  OwnedHandle mutex(CreateMutexA(nullptr, FALSE, name));
  if (mutex == nullptr) return false;
  const bool existed = GetLastError() == ERROR_ALREADY_EXISTS;
  mutexes_.push_back(std::move(mutex));
  return existed;
}

/// A path that fills the buffer may be truncated, and a truncated path names another file.
std::string Win32Processes::ModuleFileName() {
  std::array<char, MAX_PATH + 1> path{};
  const DWORD length = GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()));
  if (length == 0 || length >= path.size()) return {};
  return std::string(path.data(), length);
}

std::int32_t Win32Processes::CreateProcessA(const std::string& command_line) {
  if (IsOnEmptyDrive(command_line)) return kErrorNotReady;
  std::string writable = command_line;  // the system writes to it while it searches
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  if (::CreateProcessA(nullptr, writable.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                       &started) == 0) {
    return static_cast<std::int32_t>(GetLastError());
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  return kErrorSuccess;
}

bool Win32Processes::SetCurrentDirectoryA(const std::string& folder) {
  const SuppressedDiskErrors quiet;
  return ::SetCurrentDirectoryA(folder.c_str()) != 0;
}

}  // namespace qdix::os::win32
