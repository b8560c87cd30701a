// The functions of the system that a running program imports, led to other code.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

namespace qdix::e2e {

/// From now on the program calls `replacement`, code in its own memory, where it called this function of the
/// system. False where it does not import that function.
[[nodiscard]] bool RedirectImport(HANDLE process, std::uint32_t function, std::uint32_t replacement);

}  // namespace qdix::e2e
