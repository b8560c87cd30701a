// Reads and writes single entries of system.ini and backs it up before the program's first change.
#pragma once

#include <cstdint>
#include <string>

#include "os/files.h"
#include "os/profile_files.h"

namespace qdix::tuning {

inline constexpr const char* kSystemIni = "system.ini";
/// The backup in the same folder, made before the program's first change. It is older if it already existed
/// and could not be replaced.
inline constexpr const char* kSystemBackup = "system.qdix";
/// The section of the disk cache, and its entries. Windows ignores case; new entries get the lower case.
inline constexpr const char* kVcacheSection = "vcache";
inline constexpr const char* kMinFileCacheEntry = "MinFileCache";
inline constexpr const char* kMaxFileCacheEntry = "MaxFileCache";
inline constexpr const char* kChunkSizeEntry = "ChunkSize";
inline constexpr const char* kWrittenMinFileCacheEntry = "minfilecache";
inline constexpr const char* kWrittenMaxFileCacheEntry = "maxfilecache";
inline constexpr const char* kWrittenChunkSizeEntry = "chunksize";
/// The section of the swap file, and its entries.
inline constexpr const char* k386EnhSection = "386Enh";
inline constexpr const char* kPagingDriveEntry = "PagingDrive";
inline constexpr const char* kMinPagingFileSizeEntry = "MinPagingFileSize";
inline constexpr const char* kMaxPagingFileSizeEntry = "MaxPagingFileSize";
inline constexpr const char* kPagingEntry = "Paging";

class SystemIni {
 public:
  /// The text of an entry, cut at 254 characters, and the number of characters that Windows copied.
  struct Entry {
    std::string text;
    std::uint32_t copied = 0;

    /// A missing entry reads as one character, so an entry of one character counts as missing.
    [[nodiscard]] bool ReadsAsMissing() const { return copied == 1; }
  };

  SystemIni(os::ProfileFiles& profile_files, os::Files& files)
      : profile_files_(profile_files), files_(files) {}

  /// Returns the entry unchanged, or "0" if it is missing.
  [[nodiscard]] Entry ReadIniText(const char* section, const char* key) const;
  /// Returns the leading number of the entry, or 0 if there is none.
  [[nodiscard]] double ReadIniValue(const char* section, const char* key) const;

  /// Writes an entry. Ignores a failure.
  void WriteIniText(const char* section, const char* key, const std::string& text, const char* file);
  /// Writes a number in decimal. Ignores a failure.
  void WriteIniValue(const char* section, const char* key, std::int32_t value, const char* file);
  /// Removes an entry. Ignores a failure.
  void DeleteIniValue(const char* section, const char* key, const char* file);

  /// Copies system.ini to system.qdix in the same folder, replacing an earlier backup. Ignores a failure,
  /// which leaves no file, the earlier one, or a part.
  void BackupSystemINI();

  /// Returns the Windows folder with a backslash at the end.
  [[nodiscard]] std::string WindowsFolder() const;

 private:
  os::ProfileFiles& profile_files_;
  os::Files& files_;
};

}  // namespace qdix::tuning
