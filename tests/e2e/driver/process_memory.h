// The memory of another process, seen and narrowed from outside.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cstdint>
#include <vector>

namespace qdix::e2e {

/// Larger than anything that the program holds besides the blocks of a release.
inline constexpr std::uint64_t kBlockBytes = 16 * 1024 * 1024;

/// Sizes in bytes of the private allocations with committed pages, ascending, those below the limit left out.
/// Whole pages: memory is handed out in them.
[[nodiscard]] std::vector<std::uint64_t> CommittedBlocks(HANDLE process, std::uint64_t at_least_bytes);

/// All private committed bytes.
[[nodiscard]] std::uint64_t CommittedBytes(HANDLE process);

/// Takes the process' free address space away, except one piece of `left_bytes` and what lies in pieces below
/// 16 MB, so that larger allocations fail. False where there was no room for that piece.
[[nodiscard]] bool NarrowAddressSpace(HANDLE process, std::uint32_t left_bytes);

}  // namespace qdix::e2e
