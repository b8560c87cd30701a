// The texts of the window about the record, the backup and system.ini.
#pragma once

#include <string>

#include "os/clock.h"
#include "undo/settings.h"

namespace qdix::undo {

/// Returns the text above the rows: a warning if Windows would not start, otherwise where the values in the
/// rows come from.
[[nodiscard]] std::string StateText(const Settings& settings);

/// Returns the text below the rows, with the date of the backup and its name at the command prompt.
[[nodiscard]] std::string BackupText(const Backup& backup, const Record& record, os::Clock& clock);

/// Returns the date of the backup in the user's long date format; empty if it is unknown.
[[nodiscard]] std::string DateOf(const Backup& backup, os::Clock& clock);

}  // namespace qdix::undo
