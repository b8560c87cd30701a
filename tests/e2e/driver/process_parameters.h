// How a process was started, read from its parameter record. No code runs inside the process, so neither side
// can block the other.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <string>

namespace qdix::e2e {

/// Returns the address of a process's environment block within that process, or 0 if the system does not
/// tell.
[[nodiscard]] std::uint32_t EnvironmentBlock(HANDLE process);

/// Returns the command line that the process of a window was started with; empty if it cannot be read.
[[nodiscard]] std::string CommandLineOf(HWND window);

}  // namespace qdix::e2e
