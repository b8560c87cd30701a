#include "os/win32/win32_files.h"

#include <windows.h>

namespace qdix::os::win32 {

std::uint32_t Win32Files::GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) {
  return ::GetWindowsDirectoryA(buffer, size_bytes);
}

bool Win32Files::CopyFileA(const char* from, const char* to) { return ::CopyFileA(from, to, FALSE) != 0; }

std::uint32_t Win32Files::GetFileAttributesA(const char* path) { return ::GetFileAttributesA(path); }

}  // namespace qdix::os::win32
