// Minutes of one program that pass in a few seconds.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

/// From now on a timer that the program starts with a minute ticks every few seconds; others keep their time.
/// False where the program starts no timers.
[[nodiscard]] bool QuickenMinutes(HANDLE process);

}  // namespace qdix::e2e
