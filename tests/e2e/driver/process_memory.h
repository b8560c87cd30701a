// The memory of another process, inspected and restricted from outside.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <vector>

namespace qdix::e2e {

/// Larger than anything that the program holds besides the blocks of a release.
inline constexpr std::uint64_t kBlockBytes = 16 * 1024 * 1024;

/// Returns the sizes in bytes of the private allocations with committed pages, ascending, without those below
/// the limit. Sizes are whole pages, because memory is handed out in pages.
[[nodiscard]] std::vector<std::uint64_t> CommittedBlocks(HANDLE process, std::uint64_t at_least_bytes);

/// Returns all private committed bytes.
[[nodiscard]] std::uint64_t CommittedBytes(HANDLE process);

/// Takes away the process's free address space, except one block of `left_bytes` and gaps below 16 MB, so
/// that larger allocations fail. Returns false if there was no room for that block.
[[nodiscard]] bool RestrictAddressSpace(HANDLE process, std::uint32_t left_bytes);

}  // namespace qdix::e2e
