// The named settings of the disk cache. One table, by which a preset is applied and recognised.
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
  /// 0 where the size is a share.
  std::int32_t fixed_kb = 0;
  /// Of half a kilobyte for each kilobyte of memory.
  double share = 0;

  /// Error 6 where the share is beyond 32 bits. Memory in megabytes of 1,024,000 bytes.
  [[nodiscard]] base::Result<std::int32_t> For(double total_ram_mb) const;
};

struct CachePreset {
  std::string_view name;
  /// On machines below 33 MB and on the others.
  CacheSize small_min;
  CacheSize min;
  bool min_enabled;
  CacheSize small_max;
  CacheSize max;
  std::int32_t chunk_kb;
  std::int32_t name_cache;
  std::int32_t directory_cache;

  /// True where the minimum does not depend on the memory.
  [[nodiscard]] bool HasFixedMinimum() const;
  /// The settings on a machine with this much memory.
  [[nodiscard]] base::Result<CacheValues> For(double total_ram_mb) const;
};

/// Shown while the settings are those of no preset.
inline constexpr std::string_view kUserDefined = "User-defined";

/// The twelve presets in the order in which they are offered.
[[nodiscard]] std::span<const CachePreset> CachePresets();

/// The preset of this name, or null.
[[nodiscard]] const CachePreset* FindCachePreset(std::string_view name);

/// The preset that these settings are, or kUserDefined. Where two presets have the same values on a machine,
/// the later system's is named.
[[nodiscard]] std::string_view RecogniseCachePreset(const CacheValues& values, double total_ram_mb);

}  // namespace qdix::tuning
