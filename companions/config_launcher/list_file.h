// The list on the disk. Reads any file. Saving is atomic: either the old or the new list is always complete.
#pragma once

#include <string>
#include <vector>

#include "config_launcher/config_system.h"
#include "launcher/launcher_file.h"

namespace qdix::config_launcher {

/// Maximum number of bytes read from a list: far more than the launcher accepts, and few enough for a list
/// box.
inline constexpr std::uint32_t kMaxBytes = 100 * launcher::kRecordBytes;

/// The list on the disk and its problems.
struct FoundList {
  /// False if there is a file that could not be read. The contents of the list are then unknown.
  bool is_readable = true;
  /// The list came from the copy left behind by an interrupted save.
  bool is_from_backup = false;
  bool has_odd_length = false;
  bool has_control_characters = false;
  /// At least one entry has no name or no command line.
  bool has_incomplete_entries = false;
  /// The file is longer than the part that was read.
  bool is_cut = false;
  /// Their texts can be displayed.
  std::vector<launcher::LauncherEntry> entries{};
};

enum class Saved : unsigned char {
  kYes,
  /// The old list has not been changed.
  kNo,
  /// The old list is in launcher.bak and could not be renamed back.
  kNoAndRenamed,
};

class ListFile {
 public:
  explicit ListFile(const ConfigSystem& system);

  [[nodiscard]] FoundList Read();

  /// Writes at most launcher::kMaxEntries entries; refuses a longer list.
  [[nodiscard]] Saved Write(const std::vector<launcher::LauncherEntry>& entries);

 private:
  [[nodiscard]] bool Exists(const std::string& path);
  [[nodiscard]] bool WriteTemporary(const std::string& content);
  [[nodiscard]] Saved Replace();

  os::Files& files_;
  std::string list_;
  std::string backup_;
  std::string temporary_;
};

}  // namespace qdix::config_launcher
