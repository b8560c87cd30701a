// The two machines that the guard can be, for the guard itself and for the tests on the strict copies.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace qdix::strict95 {

enum class Machine {
  /// 4.00.950, with common controls 4.00.
  kRtm,
  /// 4.10: extended disk query, foreground lock.
  k98
};

/// Returns the machine that the environment variable QDIX_STRICT names: "rtm"; anything else is Windows 98.
[[nodiscard]] inline Machine ChosenMachine() {
  const char* const chosen = std::getenv("QDIX_STRICT");
  return chosen != nullptr && std::string_view(chosen) == "rtm" ? Machine::kRtm : Machine::k98;
}

/// Physical memory of the first Windows 95. That system does not start with much more, and the swap files
/// for it fit on its largest disk.
inline constexpr std::uint32_t kRtmMemoryBytes = 256 * 1024 * 1024;

/// The classic query of the free disk space answers at most 65,526 clusters of 32 KB, however large the disk
/// is.
inline constexpr std::uint32_t kMaxClassicDiskBytes = 65526U * 32768U;

}  // namespace qdix::strict95
