// Drops files on a program's window, with the message that the Explorer sends.
#pragma once

#include <string>
#include <vector>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

/// Returns false if the list of files cannot be put into the program.
[[nodiscard]] bool DropFiles(const ShippedProgram& program, const std::vector<std::string>& paths);

}  // namespace qdix::e2e
