// A clock by which the processor of an emulator has the speed of a real one.
#pragma once

#include <string>

namespace qdix::probe {

/// Starts the main program at this path with a fine clock that is said to make so many percent of its ticks
/// in a second: the program works out that share of the speed of the processor. Its timers keep their time.
/// False where the program does not start or asks for no fine clock.
[[nodiscard]] bool StartWithClock(const std::string& path, int percent);

}  // namespace qdix::probe
