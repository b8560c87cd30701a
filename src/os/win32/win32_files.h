// Implements `Files` on Windows. Only forwards.
#pragma once

#include "os/files.h"

namespace qdix::os::win32 {

class Win32Files final : public Files {
 public:
  [[nodiscard]] std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) override;
  bool CopyFileA(const char* from, const char* to) override;
  [[nodiscard]] std::uint32_t GetFileAttributesA(const char* path) override;
  [[nodiscard]] bool FindFirstFileA(const char* path, FoundFile& found) override;
  [[nodiscard]] FileHandle CreateFileA(const char* path, std::uint32_t access,
                                       std::uint32_t disposition) override;
  void CloseHandle(FileHandle file) override;
  [[nodiscard]] std::uint32_t GetFileSize(FileHandle file) override;
  [[nodiscard]] bool ReadFile(FileHandle file, char* buffer, std::uint32_t size_bytes,
                              std::uint32_t& read_bytes) override;
  [[nodiscard]] bool WriteFile(FileHandle file, const char* bytes, std::uint32_t size_bytes,
                               std::uint32_t& written_bytes) override;
  [[nodiscard]] bool FlushFileBuffers(FileHandle file) override;
  [[nodiscard]] bool MoveFileA(const char* from, const char* to) override;
  bool DeleteFileA(const char* path) override;
  [[nodiscard]] bool IsDBCSLeadByte(char byte) override;
};

}  // namespace qdix::os::win32
