// Files as wholes, and where Windows is.
#pragma once

#include <cstdint>

namespace qdix::os {

class Files {
 public:
  virtual ~Files() = default;

  /// Copies the folder of Windows, without a backslash at its end unless it is a root, and its NUL. Returns
  /// its length; a length of `size_bytes` or more means that nothing fitted, 0 that it is not known.
  [[nodiscard]] virtual std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) = 0;

  /// Copies a file over an earlier one. False when that failed; the target is as it was or gone.
  virtual bool CopyFileA(const char* from, const char* to) = 0;
};

}  // namespace qdix::os
