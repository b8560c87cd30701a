// Where the program lies, and with it its data and its companions.
#pragma once

#include <string>

#include "os/processes.h"

namespace qdix::shell {

/// The folder of this program's own file, with a backslash at its end; a backslash alone where the system
/// does not tell.
[[nodiscard]] std::string ApplicationFolder(os::Processes& processes);

/// The name of this program's own file without folder and extension; empty where the system does not tell.
[[nodiscard]] std::string ApplicationFileName(os::Processes& processes);

/// The path by which this program is started: folder, file name, ".exe". Empty where the system does not
/// tell.
[[nodiscard]] std::string ProgramPath(os::Processes& processes);

}  // namespace qdix::shell
