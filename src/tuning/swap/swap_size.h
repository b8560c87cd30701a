// Calculates swap file sizes from memory and free space. Memory and free space are in megabytes of 1,024,000
// bytes, swap file sizes in megabytes of 1,024 kilobytes; they are compared without conversion.
#pragma once

#include <cstdint>

#include "base/result.h"

namespace qdix::tuning {

/// Returns the size to show if system.ini has none: three times the memory, or the free space less a reserve.
[[nodiscard]] double ProposedSwapMb(double total_ram_mb, double free_mb);

/// Returns the size suggested to beginners: two to three times the memory. Error 6 if it does not fit 16
/// bits.
[[nodiscard]] base::Result<std::int16_t> SuggestedSwapMb(double total_ram_mb);

/// Free space in megabytes that a drive must have beyond the suggested size.
inline constexpr std::int32_t kSuggestionReserveMb = 100;

/// Megabytes that a swap file must leave free on its drive.
inline constexpr double kSavedReserveMb = 20;

}  // namespace qdix::tuning
