// The file format of the launcher's program list: records of fixed length, one after the other, without a
// header.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/file_content.h"

namespace qdix::launcher {

/// Name of the file, which is in the program's own folder.
inline constexpr const char* kLauncherFileName = "launcher.dat";

/// Widths of the fields in bytes, in the order of the record.
inline constexpr std::size_t kNameWidth = 55;
inline constexpr std::size_t kPathWidth = 255;
inline constexpr std::size_t kStartInWidth = 255;
inline constexpr std::size_t kRecordBytes = kNameWidth + kPathWidth + kStartInWidth;

/// Maximum number of programs in the launcher.
inline constexpr std::size_t kMaxEntries = 25;

struct LauncherEntry {
  /// The name that the user sees.
  std::string name;
  /// The command line that starts the program.
  std::string path;
  /// Start folder of the program; empty for none.
  std::string start_in;

  bool operator==(const LauncherEntry&) const = default;
};

/// Returns the number of records in a file of this length. An incomplete record at the end counts if at least
/// half of it is there.
[[nodiscard]] std::size_t RecordCount(std::size_t file_bytes);

/// Returns the record with this index, counting from 0, with blanks trimmed from both ends of each field.
/// Anything after the end of the content reads as blanks. A NUL stays in its field; use base::CutAtNul to
/// display it.
[[nodiscard]] LauncherEntry ReadRecord(std::string_view content, std::size_t index);

/// Returns all records of a file's content.
[[nodiscard]] std::vector<LauncherEntry> ReadRecords(std::string_view content);

/// Returns the bytes of a record, with each field padded with blanks or cut to its width.
[[nodiscard]] std::string RecordBytes(const LauncherEntry& entry);

using shell::ReadWholeFile;

}  // namespace qdix::launcher
