// Where the program lies, and with it its data and its companions.
#pragma once

#include <string>

#include "os/processes.h"

namespace qdix::shell {

/// The folder of this program's own file, with a backslash at its end; a backslash alone where the system
/// does not tell.
[[nodiscard]] std::string ApplicationFolder(os::Processes& processes);

}  // namespace qdix::shell
