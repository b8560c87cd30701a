// How long a press of a button takes, and what it is compared with.
#pragma once

#include <string>

#include "tests/e2e/driver/shipped_program.h"

namespace qdix::probe {

/// Returns the milliseconds until a button's handler has ended, or a negative number if the button does not
/// answer.
[[nodiscard]] double PressMs(const e2e::ShippedProgram& program, const std::string& name);
/// Returns the milliseconds to allocate a block of memory, write to each of its pages and free it, with
/// `pumps` empty pumps before it is freed and as many afterwards. A process that pumps has a window, like the
/// program that it is compared with. Negative if the system cannot provide such a block.
[[nodiscard]] double LoopMs(SIZE_T bytes, int pumps);
/// Returns the milliseconds that `times` empty pumps of this process take, with a window or without.
[[nodiscard]] double PumpsMs(int times, bool with_window);
/// Starts a program, waits until a window of the class is shown, and ends the program. Returns the
/// milliseconds until the window was shown, or a negative number if there is none within a minute.
[[nodiscard]] double StartMs(const std::string& window_class, const std::string& path);

}  // namespace qdix::probe
