// The list on the disk: reading what is there, whatever it is, and writing so that at every moment the list
// of before or the new one is there whole.
#pragma once

#include <string>
#include <vector>

#include "launcher/launcher_file.h"
#include "os/system.h"

namespace qdix::config_launcher {

/// Bytes that are read of a list: far more than the launcher takes, and few enough for a list box to show.
inline constexpr std::uint32_t kMostBytes = 100 * launcher::kRecordBytes;

/// What was found on the disk.
struct FoundList {
  /// False where there is a file that could not be read: nothing is known of the list.
  bool is_readable = true;
  /// The list came from the copy that an interrupted save had left.
  bool is_from_backup = false;
  bool has_odd_length = false;
  bool has_control_characters = false;
  /// Some entry has no name or no command line.
  bool has_incomplete_entries = false;
  /// The file goes on behind what was read.
  bool is_cut = false;
  /// With texts that can be shown.
  std::vector<launcher::LauncherEntry> entries{};
};

enum class Saved : unsigned char {
  kYes,
  /// The list of before is where it was.
  kNo,
  /// The list of before is in launcher.bak and could not be given its name again.
  kNoAndRenamed,
};

class ListFile {
 public:
  explicit ListFile(const os::System& system);

  [[nodiscard]] FoundList Read();

  /// Writes no more than launcher::kMostEntries.
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
