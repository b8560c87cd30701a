// The machine that the tests run on, and what the program has to make of it, worked out here a second time.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <cmath>
#include <string>
#include <vector>

namespace qdix::e2e {

class Machine {
 public:
  Machine() {
    MEMORYSTATUS status = {};
    status.dwLength = sizeof status;
    GlobalMemoryStatus(&status);
    total_mb_ = static_cast<double>(static_cast<LONG>(status.dwTotalPhys)) / 1.024 / 1000000;
  }

  /// Total memory in megabytes of 1,024,000 bytes, as the gauge's full mark.
  [[nodiscard]] int TotalMb() const { return static_cast<int>(std::nearbyint(total_mb_)); }
  /// Whole part of half the whole part.
  [[nodiscard]] int HalfMb() const { return static_cast<int>(std::floor(total_mb_)) / 2; }

  /// Whole megabytes of 1,024,000 bytes: the smallest swap file that is saved.
  [[nodiscard]] int WholeMb() const { return static_cast<int>(std::floor(total_mb_)); }
  /// The greatest size of the disk cache that the sliders reach, in kilobytes.
  [[nodiscard]] int LargestCacheKb() const { return static_cast<int>(std::nearbyint(total_mb_ * 500)); }
  /// A share of half the memory in kilobytes, to the nearest 512.
  [[nodiscard]] int CacheKb(double share) const {
    return static_cast<int>(std::nearbyint(std::floor(total_mb_ * 512 * share) / 512)) * 512;
  }
  /// The size that stands on the swap file's tab where system.ini names none: three times the memory.
  [[nodiscard]] int ProposedSwapMb() const { return static_cast<int>(std::floor(total_mb_ * 3)); }
  /// The size that beginners are suggested.
  [[nodiscard]] int SuggestedSwapMb() const {
    double times = 2.3;
    if (total_mb_ <= 140) times = 2.5;
    if (total_mb_ <= 70) times = 3;
    return static_cast<int>(std::floor(total_mb_ * times));
  }

  /// The amount that is proposed for a release by hand.
  [[nodiscard]] std::string ProposedAmount() const { return LargestOf(kAllAmounts); }
  /// The same for the lists that start at 12 MB.
  [[nodiscard]] std::string ProposedReleaseAmount() const {
    return LargestOf({kAllAmounts.begin() + 5, kAllAmounts.end()});
  }
  /// What the start-up list holds for half of the memory: itself, or nothing where that is no entry.
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

  /// "0" where even the smallest is too large.
  [[nodiscard]] std::string LargestOf(const std::vector<int>& amounts) const {
    int largest = 0;
    for (const int amount : amounts) largest = amount <= HalfMb() ? amount : largest;
    return std::to_string(largest);
  }

  double total_mb_ = 0;
};

}  // namespace qdix::e2e
