// Reads, writes and manages files, and finds the Windows folder.
#pragma once

#include <cstdint>
#include <string>

namespace qdix::os {

/// The file does not exist, or its attributes are unknown.
inline constexpr std::uint32_t kInvalidFileAttributes = 0xFFFFFFFFU;
inline constexpr std::uint32_t kFileAttributeReadOnly = 0x01U;
inline constexpr std::uint32_t kFileAttributeDirectory = 0x10U;

/// An open file; kInvalidFile means none.
using FileHandle = std::uintptr_t;
inline constexpr FileHandle kInvalidFile = ~FileHandle{0};

inline constexpr std::uint32_t kGenericRead = 0x80000000U;
inline constexpr std::uint32_t kGenericWrite = 0x40000000U;

/// Creates a file; replaces an existing one.
inline constexpr std::uint32_t kCreateAlways = 2;
/// Opens an existing file only.
inline constexpr std::uint32_t kOpenExisting = 3;
/// Opens an existing file or creates one.
inline constexpr std::uint32_t kOpenAlways = 4;

inline constexpr std::uint32_t kInvalidFileSize = 0xFFFFFFFFU;

/// What a file's directory entry says.
struct FoundFile {
  /// Local date and time of the last change, in days since 30 December 1899.
  double changed_days = 0;
  /// The 8.3 name by which DOS programs know the file.
  std::string dos_name;
};

class Files {
 public:
  /// Copies the path of the Windows folder and its NUL, without a trailing backslash unless it is a root.
  /// Returns its length. A length of `size_bytes` or more means that it did not fit; 0 means that it is
  /// unknown.
  [[nodiscard]] virtual std::uint32_t GetWindowsDirectoryA(char* buffer, std::uint32_t size_bytes) = 0;

  /// Copies a file with its date and its attributes; replaces an existing one. False on failure: the target
  /// is then unchanged, missing, or a partial copy.
  virtual bool CopyFileA(const char* from, const char* to) = 0;

  /// Returns the attribute bits of a file or folder, or kInvalidFileAttributes.
  [[nodiscard]] virtual std::uint32_t GetFileAttributesA(const char* path) = 0;

  /// Looks up a file by its full path, without wildcards. False if there is none or the system refuses;
  /// `found` is then unchanged.
  [[nodiscard]] virtual bool FindFirstFileA(const char* path, FoundFile& found) = 0;

  /// Opens a file at its beginning; other programs can read it while it is open. Returns kInvalidFile if the
  /// system refuses. The caller closes it.
  [[nodiscard]] virtual FileHandle CreateFileA(const char* path, std::uint32_t access,
                                               std::uint32_t disposition) = 0;
  virtual void CloseHandle(FileHandle file) = 0;

  /// Returns the lower 32 bits of the length in bytes, or kInvalidFileSize if it cannot be determined.
  [[nodiscard]] virtual std::uint32_t GetFileSize(FileHandle file) = 0;
  /// Reads from where the last read or write ended. Reads fewer bytes than requested at the end of the file.
  /// False on failure.
  [[nodiscard]] virtual bool ReadFile(FileHandle file, char* buffer, std::uint32_t size_bytes,
                                      std::uint32_t& read_bytes) = 0;
  /// Writes from where the last read or write ended. False on failure or if the disk is full; `written_bytes`
  /// is the number of bytes written.
  [[nodiscard]] virtual bool WriteFile(FileHandle file, const char* bytes, std::uint32_t size_bytes,
                                       std::uint32_t& written_bytes) = 0;
  /// Flushes everything written to the disk. False on failure.
  [[nodiscard]] virtual bool FlushFileBuffers(FileHandle file) = 0;

  /// Renames a file within its folder. False if the new name is taken or the system refuses.
  [[nodiscard]] virtual bool MoveFileA(const char* from, const char* to) = 0;
  virtual bool DeleteFileA(const char* path) = 0;

  /// True for the first byte of a two-byte character, as in file names on a Windows of the Far East. The
  /// second byte can look like a backslash.
  [[nodiscard]] virtual bool IsDBCSLeadByte(char byte) = 0;

 protected:
  ~Files() = default;
};

}  // namespace qdix::os
