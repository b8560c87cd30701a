// The folder of the program, which also holds its data and its companions.
#pragma once

#include <string>

#include "os/processes.h"

namespace qdix::shell {

/// Returns the folder of this program's own file with a trailing backslash; a backslash alone if the system
/// does not report it.
[[nodiscard]] std::string ApplicationFolder(os::Processes& processes);

/// Returns the name of this program's own file without folder and extension; empty if the system does not
/// report it.
[[nodiscard]] std::string ApplicationFileName(os::Processes& processes);

/// Returns the path that starts this program: folder, file name, ".exe". Empty if the system does not report
/// it.
[[nodiscard]] std::string ProgramPath(os::Processes& processes);

}  // namespace qdix::shell
