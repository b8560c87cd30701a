// A file of a test: gets back what it held before.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <optional>
#include <string>

namespace qdix::e2e {

/// The bytes of a file, read by the system's own calls; nothing where there is no such file.
[[nodiscard]] std::optional<std::string> FileBytes(const std::string& path);
/// Makes the file hold these bytes, or removes it; false where that failed.
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
