// Sizes of a swap file, worked out from memory and free space. Memory and free space are megabytes of
// 1,024,000 bytes, a swap file's size megabytes of 1,024 kilobytes; they are compared as they stand.
#pragma once

#include <cstdint>

#include "base/result.h"

namespace qdix::tuning {

/// What is shown where system.ini names no size: three times the memory, or what the drive has less a
/// reserve.
[[nodiscard]] double ProposedSwapMb(double total_ram_mb, double free_mb);

/// What is suggested to beginners: two to three times the memory. Error 6 where 16 bits do not hold it.
[[nodiscard]] base::Result<std::int16_t> SuggestedSwapMb(double total_ram_mb);

/// Free space that a drive must have beyond the suggested size.
inline constexpr std::int32_t kSuggestionReserveMb = 100;

/// A swap file leaves at least this much of a drive free.
inline constexpr double kSavedReserveMb = 20;

}  // namespace qdix::tuning
