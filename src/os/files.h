// Files as wholes and byte by byte, and where Windows is.
#pragma once

#include <cstdint>
#include <string>

namespace qdix::os {

/// There is nothing of that name, or nothing is known of it.
inline constexpr std::uint32_t kInvalidFileAttributes = 0xFFFFFFFFU;
inline constexpr std::uint32_t kFileAttributeReadOnly = 0x01U;
inline constexpr std::uint32_t kFileAttributeDirectory = 0x10U;

/// An open file; kInvalidFile is none.
using FileHandle = std::uintptr_t;
inline constexpr FileHandle kInvalidFile = ~FileHandle{0};

inline constexpr std::uint32_t kGenericRead = 0x80000000U;
inline constexpr std::uint32_t kGenericWrite = 0x40000000U;

/// A new file, over an earlier one.
inline constexpr std::uint32_t kCreateAlways = 2;
/// A file that is there.
inline constexpr std::uint32_t kOpenExisting = 3;
/// A file that is there, or a new one.
inline constexpr std::uint32_t kOpenAlways = 4;

inline constexpr std::uint32_t kInvalidFileSize = 0xFFFFFFFFU;

/// What the folder of a file says of it.
struct FoundFile {
  /// Local date and time of the last change, in days since 30 December 1899.
  double changed_days = 0;
  /// The name of at most 8 and 3 characters by which programs of DOS know the file.
  std::string dos_name;
};

class Files {
 public:
  virtual ~Files() = default;

  /// Copies the folder of Windows, without a backslash at its end unless it is a root, and its NUL. Returns
  /// its length; a length of `size_bytes` or more means that nothing fitted, 0 that it is not known.
  [[nodiscard]] virtual std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) = 0;

  /// Copies a file over an earlier one, with its date of change and its attributes. False when that failed;
  /// the target is as it was, gone, or a part of the copy.
  virtual bool CopyFileA(const char* from, const char* to) = 0;

  /// The attribute bits of a file or folder, or kInvalidFileAttributes.
  [[nodiscard]] virtual std::uint32_t GetFileAttributesA(const char* path) = 0;

  /// Looks a file up by its full path, which holds no wildcards. False where there is none or the system
  /// refuses; `found` is written on success only.
  [[nodiscard]] virtual bool FindFirstFileA(const char* path, FoundFile& found) = 0;

  /// Opens a file at its beginning; others may read it meanwhile. kInvalidFile where the system refuses. The
  /// caller closes it.
  [[nodiscard]] virtual FileHandle CreateFileA(const char* path, std::uint32_t access,
                                               std::uint32_t disposition) = 0;
  virtual void CloseHandle(FileHandle file) = 0;

  /// Its length in bytes, the lower 32 bits of it; kInvalidFileSize where that cannot be told.
  [[nodiscard]] virtual std::uint32_t GetFileSize(FileHandle file) = 0;
  /// Reads on from where the last reading or writing ended. Fewer bytes than asked for at the end of the
  /// file. False when that failed.
  [[nodiscard]] virtual bool ReadFile(FileHandle file, char* buffer, std::uint32_t size_bytes,
                                      std::uint32_t& read_bytes) = 0;
  /// False when that failed, or the disk is full; `written_bytes` tells how far it came.
  [[nodiscard]] virtual bool WriteFile(FileHandle file, const char* bytes, std::uint32_t size_bytes,
                                       std::uint32_t& written_bytes) = 0;
  /// What was written is on the disk afterwards. False when that failed.
  [[nodiscard]] virtual bool FlushFileBuffers(FileHandle file) = 0;

  /// Gives a file another name in its folder. False where there is one of that name already, or the system
  /// refuses.
  [[nodiscard]] virtual bool MoveFileA(const char* from, const char* to) = 0;
  virtual bool DeleteFileA(const char* path) = 0;

  /// True for the first byte of a character that takes two, as in the names of files on a Windows of the Far
  /// East. The second byte may look like a backslash.
  [[nodiscard]] virtual bool IsDBCSLeadByte(char byte) = 0;
};

}  // namespace qdix::os
