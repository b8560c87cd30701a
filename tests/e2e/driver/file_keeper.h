// A file that a test uses; its previous contents are restored afterwards.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <optional>
#include <string>

namespace qdix::e2e {

/// Returns the bytes of a file, read by system calls, or nothing if there is no such file.
[[nodiscard]] std::optional<std::string> FileBytes(const std::string& path);
/// Writes these bytes to the file, or removes it; returns false on failure.
bool SetFileBytes(const std::string& path, const std::optional<std::string>& bytes);

class FileKeeper {
 public:
  /// Removes the file for the test.
  explicit FileKeeper(const std::string& path) : path_(path), before_(FileBytes(path)) {
    SetFileBytes(path_, std::nullopt);
  }
  FileKeeper(const FileKeeper&) = delete;
  FileKeeper& operator=(const FileKeeper&) = delete;
  ~FileKeeper() { SetFileBytes(path_, before_); }

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::optional<std::string> Bytes() const { return FileBytes(path_); }
  bool SetBytes(const std::string& bytes) const { return SetFileBytes(path_, bytes); }

 private:
  const std::string path_;
  const std::optional<std::string> before_;
};

}  // namespace qdix::e2e
