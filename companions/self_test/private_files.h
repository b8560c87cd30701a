// Allows changes only to files in one folder. That folder also counts as the Windows folder, so it has its
// own system.ini. All other files can be read.
#pragma once

#include <string>
#include <string_view>

#include "os/files.h"
#include "os/profile_files.h"

namespace qdix::self_test {

/// True for a file directly in the folder. `folder` has no backslash at the end.
[[nodiscard]] bool IsInFolder(std::string_view folder, std::string_view path);

class PrivateFiles final : public os::Files {
 public:
  /// `real` must outlive this object. The owner of the folder deletes it.
  PrivateFiles(os::Files& real, const std::string& folder) : real_(real), folder_(folder) {}

  [[nodiscard]] std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) override;
  bool CopyFileA(const char* from, const char* to) override;
  [[nodiscard]] std::uint32_t GetFileAttributesA(const char* path) override;
  [[nodiscard]] bool FindFirstFileA(const char* path, os::FoundFile& found) override;
  [[nodiscard]] os::FileHandle CreateFileA(const char* path, std::uint32_t access,
                                           std::uint32_t disposition) override;
  void CloseHandle(os::FileHandle file) override;
  [[nodiscard]] std::uint32_t GetFileSize(os::FileHandle file) override;
  [[nodiscard]] bool ReadFile(os::FileHandle file, char* buffer, std::uint32_t size_bytes,
                              std::uint32_t& read_bytes) override;
  [[nodiscard]] bool WriteFile(os::FileHandle file, const char* bytes, std::uint32_t size_bytes,
                               std::uint32_t& written_bytes) override;
  [[nodiscard]] bool FlushFileBuffers(os::FileHandle file) override;
  [[nodiscard]] bool MoveFileA(const char* from, const char* to) override;
  bool DeleteFileA(const char* path) override;
  [[nodiscard]] bool IsDBCSLeadByte(char byte) override;

 private:
  os::Files& real_;
  const std::string folder_;
};

class PrivateProfileFiles final : public os::ProfileFiles {
 public:
  PrivateProfileFiles(os::ProfileFiles& real, const std::string& folder) : real_(real), folder_(folder) {}

  [[nodiscard]] std::uint32_t GetPrivateProfileStringA(const char* section, const char* key,
                                                       const char* missing, char* buffer,
                                                       std::uint32_t size_bytes, const char* file) override;
  bool WritePrivateProfileStringA(const char* section, const char* key, const char* value,
                                  const char* file) override;

 private:
  /// A file name without a path means the Windows folder, which is this folder.
  [[nodiscard]] std::string PathOf(const char* file) const;

  os::ProfileFiles& real_;
  const std::string folder_;
};

}  // namespace qdix::self_test
