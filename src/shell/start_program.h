// Starts other programs.
#pragma once

#include <string>

#include "base/result.h"
#include "os/processes.h"

namespace qdix::shell {

/// Starts a program by its command line, in a normal window with the keyboard, and does not wait for it.
/// Errors: 53 if there is no such program or no disk in its drive, 70 if it may not be started, 5 if the text
/// names no program.
base::Status StartProgram(os::Processes& processes, const std::string& command_line);

}  // namespace qdix::shell
