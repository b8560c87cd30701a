// Files as wholes, and where Windows is.
#pragma once

#include <cstdint>

namespace qdix::os {

/// There is nothing of that name, or nothing is known of it.
inline constexpr std::uint32_t kInvalidFileAttributes = 0xFFFFFFFFU;
inline constexpr std::uint32_t kFileAttributeDirectory = 0x10U;

class Files {
 public:
  virtual ~Files() = default;

  /// Copies the folder of Windows, without a backslash at its end unless it is a root, and its NUL. Returns
  /// its length; a length of `size_bytes` or more means that nothing fitted, 0 that it is not known.
  [[nodiscard]] virtual std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) = 0;

  /// Copies a file over an earlier one. False when that failed; the target is as it was or gone.
  virtual bool CopyFileA(const char* from, const char* to) = 0;

  /// The attribute bits of a file or folder, or kInvalidFileAttributes.
  [[nodiscard]] virtual std::uint32_t GetFileAttributesA(const char* path) = 0;
};

}  // namespace qdix::os
