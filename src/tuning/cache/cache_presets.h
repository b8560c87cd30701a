// The named settings of the disk cache. The same table serves to apply and to recognise a preset.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "base/result.h"

namespace qdix::tuning {

/// What the sliders show, and whether a minimum is set.
struct CacheValues {
  /// Kilobytes.
  std::int32_t min_cache_kb = 0;
  bool min_enabled = false;
  std::int32_t max_cache_kb = 0;
  std::int32_t chunk_kb = 0;
  /// Entries.
  std::int32_t name_cache = 0;
  std::int32_t directory_cache = 0;

  bool operator==(const CacheValues&) const = default;
};

/// A size of the cache: fixed, or a share of the memory.
struct CacheSize {
  /// 0 if the size is a share.
  std::int16_t fixed_kb = 0;
  /// Of 512 KB for each megabyte of memory.
  std::uint8_t share_percent = 0;

  /// Returns the size in KB; error 6 if a share does not fit 32 bits. `total_ram_mb` is in megabytes of
  /// 1,024,000 bytes.
  [[nodiscard]] base::Result<std::int32_t> For(double total_ram_mb) const;
};

struct CachePreset {
  std::string_view name;
  /// `small_...` applies to machines below 33 MB, the others above that.
  CacheSize small_min;
  CacheSize min;
  bool min_enabled;
  CacheSize small_max;
  CacheSize max;
  std::int16_t chunk_kb;
  std::int16_t name_cache;
  std::int16_t directory_cache;

  /// True if the minimum does not depend on the memory.
  [[nodiscard]] bool HasFixedMinimum() const;
  /// Returns the settings for a machine with this much memory.
  [[nodiscard]] base::Result<CacheValues> For(double total_ram_mb) const;
};

/// Returns the multiple of 512 KB nearest to a size in KB, ties to the even multiple. Error 6 if it does not
/// fit 32 bits.
[[nodiscard]] base::Result<std::int32_t> GetVCACHEValue(std::int32_t size_kb);

/// Shown when the settings match no preset.
inline constexpr std::string_view kUserDefined = "User-defined";

/// Returns the twelve presets in display order.
[[nodiscard]] std::span<const CachePreset> CachePresets();

/// Returns the preset of this name, or null.
[[nodiscard]] const CachePreset* FindCachePreset(std::string_view name);

/// Returns the name of the preset with these settings, or kUserDefined. If two presets have the same values
/// on a machine, returns the one for the later version of Windows.
[[nodiscard]] std::string_view RecogniseCachePreset(const CacheValues& values, double total_ram_mb);

}  // namespace qdix::tuning
