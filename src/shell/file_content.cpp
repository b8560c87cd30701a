#include "shell/file_content.h"

#include <algorithm>

namespace qdix::shell {

std::optional<std::string> ReadWholeFile(os::Files& files, const std::string& path, std::uint32_t max_bytes) {
  const os::FileHandle file = files.CreateFileA(path.c_str(), os::kGenericRead, os::kOpenExisting);
  if (file == os::kInvalidFile) return std::nullopt;
  std::string content;
  std::uint32_t read_bytes = 0;
  const std::uint32_t file_bytes = files.GetFileSize(file);
  const std::uint32_t size_bytes = std::min(file_bytes, max_bytes);
  bool is_read = file_bytes != os::kInvalidFileSize;
  if (is_read) {
    content.resize(size_bytes);
    is_read = files.ReadFile(file, content.data(), size_bytes, read_bytes);
  }
  files.CloseHandle(file);
  // An incomplete read counts as a failure.
  if (!is_read || read_bytes != size_bytes) return std::nullopt;
  return content;
}

}  // namespace qdix::shell
