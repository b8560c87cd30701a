#include "os/win32/win32_files.h"

#include <windows.h>

#include "os/win32/suppressed_disk_errors.h"
#include "os/win32/system_time.h"

namespace qdix::os::win32 {

namespace {

static_assert(kGenericRead == GENERIC_READ && kGenericWrite == GENERIC_WRITE);
static_assert(kCreateAlways == CREATE_ALWAYS && kOpenExisting == OPEN_EXISTING && kOpenAlways == OPEN_ALWAYS);
static_assert(kInvalidFileSize == INVALID_FILE_SIZE);

HANDLE Native(FileHandle file) { return reinterpret_cast<HANDLE>(file); }

}  // namespace

std::uint32_t Win32Files::GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) {
  return ::GetWindowsDirectoryA(buffer, size_bytes);
}

bool Win32Files::CopyFileA(const char* from, const char* to) { return ::CopyFileA(from, to, FALSE) != 0; }

std::uint32_t Win32Files::GetFileAttributesA(const char* path) {
  const SuppressedDiskErrors quiet;
  return ::GetFileAttributesA(path);
}

bool Win32Files::FindFirstFileA(const char* path, FoundFile& found) {
  WIN32_FIND_DATAA data{};
  const HANDLE search = ::FindFirstFileA(path, &data);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  FILETIME local{};
  SYSTEMTIME changed{};
  if (FileTimeToLocalFileTime(&data.ftLastWriteTime, &local) == 0 ||
      FileTimeToSystemTime(&local, &changed) == 0) {
    return false;
  }
  found.changed_days = DaysOf(changed);
  // A name that is valid in DOS has no alternate name.
  found.dos_name = data.cAlternateFileName[0] != '\0' ? data.cAlternateFileName : data.cFileName;
  return true;
}

FileHandle Win32Files::CreateFileA(const char* path, std::uint32_t access, std::uint32_t disposition) {
  return reinterpret_cast<FileHandle>(
      ::CreateFileA(path, access, FILE_SHARE_READ, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

void Win32Files::CloseHandle(FileHandle file) { ::CloseHandle(Native(file)); }

std::uint32_t Win32Files::GetFileSize(FileHandle file) { return ::GetFileSize(Native(file), nullptr); }

bool Win32Files::ReadFile(FileHandle file, char* buffer, std::uint32_t size_bytes,
                          std::uint32_t& read_bytes) {
  DWORD read = 0;
  const bool done = ::ReadFile(Native(file), buffer, size_bytes, &read, nullptr) != 0;
  read_bytes = read;
  return done;
}

bool Win32Files::WriteFile(FileHandle file, const char* bytes, std::uint32_t size_bytes,
                           std::uint32_t& written_bytes) {
  DWORD written = 0;
  const bool done = ::WriteFile(Native(file), bytes, size_bytes, &written, nullptr) != 0;
  written_bytes = written;
  return done && written == size_bytes;
}

bool Win32Files::FlushFileBuffers(FileHandle file) { return ::FlushFileBuffers(Native(file)) != 0; }

bool Win32Files::MoveFileA(const char* from, const char* to) { return ::MoveFileA(from, to) != 0; }

bool Win32Files::DeleteFileA(const char* path) { return ::DeleteFileA(path) != 0; }

bool Win32Files::IsDBCSLeadByte(char byte) { return ::IsDBCSLeadByte(static_cast<BYTE>(byte)) != 0; }

}  // namespace qdix::os::win32
