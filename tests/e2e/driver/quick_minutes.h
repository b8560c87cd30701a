// Makes the minutes of one program pass in a few seconds.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

/// Makes one-minute timers that the program starts from now on tick every few seconds; other timers keep
/// their interval. Returns false if the program starts no timers.
[[nodiscard]] bool QuickenMinutes(HANDLE process);

}  // namespace qdix::e2e
