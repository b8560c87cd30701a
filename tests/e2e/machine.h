// The machine that the tests run on, and what the program must show for it, worked out independently of the
// program.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "tests/strict95/machine.h"

namespace qdix::e2e {

/// Returns the bytes of the whole pages that an allocation takes.
[[nodiscard]] inline std::uint64_t WholePages(std::uint64_t bytes) {
  constexpr std::uint64_t kPageBytes = 4096;
  return (bytes + kPageBytes - 1) / kPageBytes * kPageBytes;
}

class Machine {
 public:
  Machine() {
    MEMORYSTATUS status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatus(&status);
    if (strict95::ChosenMachine() == strict95::Machine::kRtm) {
      status.dwTotalPhys = std::min<SIZE_T>(status.dwTotalPhys, strict95::kRtmMemoryBytes);
    }
    total_mb_ = static_cast<double>(static_cast<LONG>(status.dwTotalPhys)) / 1.024 / 1000000;
  }

  /// Returns the total memory in megabytes of 1,024,000 bytes, as on the gauge's full mark.
  [[nodiscard]] int TotalMb() const { return static_cast<int>(std::nearbyint(total_mb_)); }
  /// Returns half of the whole megabytes, rounded down.
  [[nodiscard]] int HalfMb() const { return static_cast<int>(std::floor(total_mb_)) / 2; }

  /// Returns 66 % of the megabytes, rounded down.
  [[nodiscard]] int TwoThirdsMb() const { return static_cast<int>(std::floor(total_mb_ * 0.66)); }

  /// Returns whole megabytes of 1,024,000 bytes: the smallest swap file that can be saved.
  [[nodiscard]] int WholeMb() const { return static_cast<int>(std::floor(total_mb_)); }
  /// Returns the largest disk cache that the sliders reach, in kilobytes.
  [[nodiscard]] int LargestCacheKb() const { return static_cast<int>(std::nearbyint(total_mb_ * 500)); }
  /// Returns a share of half the memory in kilobytes, to the nearest 512.
  [[nodiscard]] int CacheKb(double share) const {
    return static_cast<int>(std::nearbyint(std::floor(total_mb_ * 512 * share) / 512)) * 512;
  }
  /// Returns the size that the swap file tab shows if system.ini names none: three times the memory.
  [[nodiscard]] int ProposedSwapMb() const { return static_cast<int>(std::floor(total_mb_ * 3)); }
  /// Returns the size suggested to beginners.
  [[nodiscard]] int SuggestedSwapMb() const {
    double times = 2.3;
    if (total_mb_ <= 140) times = 2.5;
    if (total_mb_ <= 70) times = 3;
    return static_cast<int>(std::floor(total_mb_ * times));
  }

  /// Returns the amount proposed for a manual release.
  [[nodiscard]] std::string ProposedAmount() const { return LargestOf(kAllAmounts); }
  /// Does the same for the lists that start at 12 MB.
  [[nodiscard]] std::string ProposedReleaseAmount() const {
    return LargestOf({kAllAmounts.begin() + 5, kAllAmounts.end()});
  }
  /// Returns the start-up list's entry for half of the memory, or an empty text if that is no entry.
  [[nodiscard]] std::string StartupAmount() const {
    const bool is_entry = std::to_string(HalfMb()) == ProposedReleaseAmount();
    return is_entry ? ProposedReleaseAmount() : "0";
  }
  [[nodiscard]] std::string ProposedThreshold() const {
    const int whole_mb = static_cast<int>(std::floor(total_mb_));
    if (whole_mb < 33) return "1";
    if (whole_mb < 66) return "2";
    if (whole_mb < 98) return "4";
    return whole_mb < 132 ? "6" : "8";
  }

 private:
  inline static const std::vector<int> kAllAmounts{1,   2,   4,   6,   8,   12,  16,  20,  24,  28,
                                                   32,  40,  48,  56,  64,  72,  88,  104, 120, 136,
                                                   168, 200, 232, 264, 296, 328, 360, 424, 480, 512};

  /// Returns "0" if even the smallest amount is too large.
  [[nodiscard]] std::string LargestOf(const std::vector<int>& amounts) const {
    int largest = 0;
    for (const int amount : amounts) largest = amount <= HalfMb() ? amount : largest;
    return std::to_string(largest);
  }

  double total_mb_ = 0;
};

}  // namespace qdix::e2e
