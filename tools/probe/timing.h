// How long a press of a button takes, and what it is compared with.
#pragma once

#include <string>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::probe {

/// Milliseconds until a button's handler has ended; negative where the button does not come back.
[[nodiscard]] double PressMs(const e2e::ShippedProgram& program, const std::string& name);
/// Milliseconds to take a block of memory, write into each of its pages and give it back, with so many empty
/// pumps while it is held and as many after; negative where the system has no such block.
[[nodiscard]] double LoopMs(SIZE_T bytes, int pumps);
/// Milliseconds of so many empty pumps of this process. From its first window on, a pump of Wine asks the
/// screen too.
[[nodiscard]] double PumpsMs(int times, bool with_window);

}  // namespace qdix::probe
