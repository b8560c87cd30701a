// A new system.ini in the place of the old one: written beside it, then the names are changed. At every
// moment at least one whole file is on the disk, and no file of the user's is written over.
#pragma once

#include <string>

#include "os/files.h"

namespace qdix::undo {

struct Replacement {
  enum class Outcome : unsigned char {
    kDone,
    /// system.ini is as it was.
    kRefused,
    /// The old system.ini has its other name and could not be given its own again. There is no system.ini.
    kRenamed,
  };

  Outcome outcome = Outcome::kRefused;
  /// The name of the old file in the Windows folder, as DOS writes it; empty where there was none.
  std::string kept_name{};
};

/// Replaces system.ini in the folder, which ends with a backslash. A write-protected file is left alone.
/// Windows must not keep entries of system.ini in memory: flush them before.
[[nodiscard]] Replacement ReplaceSystemIni(os::Files& files, const std::string& folder,
                                           const std::string& content);

}  // namespace qdix::undo
