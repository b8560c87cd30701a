// How a process was started, read from its record of parameters: nothing runs inside of it, so that neither
// side can hold the other up.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <string>

namespace qdix::e2e {

/// Where the environment block of a process begins, its own numbers; 0 where the system does not tell.
[[nodiscard]] std::uint32_t EnvironmentBlock(HANDLE process);

/// The command line that the process of a window was started with; empty where it cannot be read.
[[nodiscard]] std::string CommandLineOf(HWND window);

}  // namespace qdix::e2e
