// What the window says of record, backup and system.ini.
#pragma once

#include <string>

#include "os/clock.h"
#include "undo/settings.h"

namespace qdix::undo {

/// The text above the rows: a warning where Windows would not start, otherwise what the rows rest on.
[[nodiscard]] std::string StateText(const Settings& settings);

/// The text below the rows. It tells the date of the backup and its name at the command prompt.
[[nodiscard]] std::string BackupText(const Backup& backup, const Record& record, os::Clock& clock);

/// The day of the backup in the user's long date picture; empty where it is not known.
[[nodiscard]] std::string DateOf(const Backup& backup, os::Clock& clock);

}  // namespace qdix::undo
