// Replaces system.ini: writes the new file under another name, then renames both. At every moment at least
// one complete file is on the disk, and none of the user's files is overwritten.
#pragma once

#include <string>

#include "os/files.h"

namespace qdix::undo {

struct Replacement {
  enum class Outcome : unsigned char {
    kDone,
    /// system.ini has not been changed.
    kRefused,
    /// The old system.ini was renamed and could not be renamed back. There is no system.ini.
    kRenamed,
  };

  Outcome outcome = Outcome::kRefused;
  /// The DOS name of the old file in the Windows folder; empty if there was none.
  std::string kept_name{};
};

/// Replaces system.ini in the folder, which must end with a backslash. Leaves a write-protected file alone.
/// Windows must not hold entries of system.ini in its cache: flush them first.
[[nodiscard]] Replacement ReplaceSystemIni(os::Files& files, const std::string& folder,
                                           const std::string& content);

}  // namespace qdix::undo
