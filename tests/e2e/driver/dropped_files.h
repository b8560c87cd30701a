// Files let go over a program's window, as the Explorer reports them to it.
#pragma once

#include <string>
#include <vector>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::e2e {

/// False where the list of files does not get into the program.
[[nodiscard]] bool DropFiles(const ShippedProgram& program, const std::vector<std::string>& paths);

}  // namespace qdix::e2e
