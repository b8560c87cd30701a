// Redirects system functions that a running program imports.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>

namespace qdix::e2e {

/// Makes the program call `replacement`, code in its own memory, instead of this system function from now on.
/// Returns false if the program does not import the function.
[[nodiscard]] bool RedirectImport(HANDLE process, std::uint32_t function, std::uint32_t replacement);

}  // namespace qdix::e2e
