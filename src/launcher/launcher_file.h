// The list of programs that the launcher offers, as it lies on the disk: records of one length, one after the
// other, without a heading.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/file_content.h"

namespace qdix::launcher {

/// Name of the file in the program's own folder.
inline constexpr const char* kLauncherFileName = "launcher.dat";

/// Bytes of the fields, in the order in which they stand in a record.
inline constexpr std::size_t kNameWidth = 55;
inline constexpr std::size_t kPathWidth = 255;
inline constexpr std::size_t kStartInWidth = 255;
inline constexpr std::size_t kRecordBytes = kNameWidth + kPathWidth + kStartInWidth;

/// The launcher has room for no more.
inline constexpr std::size_t kMostEntries = 25;

struct LauncherEntry {
  /// What the user sees.
  std::string name;
  /// The command line that starts the program.
  std::string path;
  /// The folder that the program is started in; empty for none.
  std::string start_in;

  bool operator==(const LauncherEntry&) const = default;
};

/// How many records a file of this length holds: a broken one at the end counts from its half on.
[[nodiscard]] std::size_t RecordCount(std::size_t file_bytes);

/// The record of this index, counted from 0, with the blanks taken off both ends of each field. What lies
/// behind the end of the content reads as blanks. A NUL stays in its field; base::CutAtNul shows it.
[[nodiscard]] LauncherEntry ReadRecord(std::string_view content, std::size_t index);

/// All records of a file's content.
[[nodiscard]] std::vector<LauncherEntry> ReadRecords(std::string_view content);

/// The bytes of a record: each field filled up with blanks, or cut, to its width.
[[nodiscard]] std::string RecordBytes(const LauncherEntry& entry);

using shell::ReadWholeFile;

}  // namespace qdix::launcher
