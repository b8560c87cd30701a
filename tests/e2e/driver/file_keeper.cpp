// Files are read and written by system calls: under Wine the library's file streams disturb the output of the
// test program.
#include "tests/e2e/driver/file_keeper.h"

namespace qdix::e2e {

std::optional<std::string> FileBytes(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string bytes(GetFileSize(file, nullptr), '\0');
  DWORD count = 0;
  const bool is_read = ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) != 0;
  CloseHandle(file);
  if (!is_read || count != bytes.size()) return std::nullopt;
  return bytes;
}

bool SetFileBytes(const std::string& path, const std::optional<std::string>& bytes) {
  if (!bytes.has_value()) return DeleteFileA(path.c_str()) != 0 || GetLastError() == ERROR_FILE_NOT_FOUND;
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  DWORD count = 0;
  const bool is_written =
      WriteFile(file, bytes->data(), static_cast<DWORD>(bytes->size()), &count, nullptr) != 0;
  CloseHandle(file);
  return is_written && count == bytes->size();
}

}  // namespace qdix::e2e
