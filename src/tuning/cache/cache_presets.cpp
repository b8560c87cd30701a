#include "tuning/cache/cache_presets.h"

#include <array>

#include "base/numbers.h"

namespace qdix::tuning {

namespace {

/// Limit for machines with 32 MB or less, which read as a little more than 32 of these megabytes of 1,024,000
/// bytes.
constexpr double kSmallBelowMb = 33;
constexpr double kStepKb = 512;

constexpr CacheSize Kb(std::int16_t size_kb) { return {.fixed_kb = size_kb, .share_percent = 0}; }
constexpr CacheSize Share(std::uint8_t percent) { return {.fixed_kb = 0, .share_percent = percent}; }

/// Name; minimum on small machines, otherwise, enabled; maximum on small machines, otherwise; chunk; name
/// cache; directory cache.
constexpr std::array<CachePreset, 12> kPresets{{
    {"Standard System (Win95)", Kb(512), Kb(512), false, Share(25), Share(25), 512, 2048, 64},
    {"Standard System (Win98/ME)", Kb(512), Kb(512), false, Share(31), Share(31), 1024, 2048, 64},
    {"Power User (Win95)", Kb(512), Kb(512), false, Share(25), Share(25), 512, 4096, 96},
    {"Power User (Win98/ME)", Kb(512), Kb(512), false, Share(25), Share(25), 2048, 4096, 96},
    {"Multimedia (Win95)", Kb(1024), Share(12), true, Share(19), Share(25), 4096, 6144, 128},
    {"Multimedia (Win98/ME)", Kb(1024), Share(6), true, Share(19), Share(19), 4096, 6144, 128},
    {"3D Games (Win95)", Kb(512), Kb(512), false, Share(13), Share(10), 4096, 2048, 48},
    {"3D Games (Win98/ME)", Kb(512), Kb(512), false, Share(13), Share(12), 1024, 2048, 48},
    {"CD Writer (Win95)", Kb(1024), Share(19), true, Kb(1024), Share(19), 2048, 6144, 128},
    {"CD Writer (Win98/ME)", Kb(1024), Share(19), true, Kb(1024), Share(19), 512, 6144, 128},
    {"Low Memory System (Win95)", Kb(512), Kb(512), false, Share(19), Share(12), 512, 337, 16},
    {"Low Memory System (Win98/ME)", Kb(512), Kb(512), false, Share(19), Share(9), 512, 337, 16},
}};

/// What recognition does with a preset whose fixed settings match but whose shares do not.
enum class AfterMismatch {
  kTryTheNext,
  kStop,
};

struct ChainLink {
  std::string_view name;
  AfterMismatch after_mismatch;
};

constexpr std::array<ChainLink, 10> kChain{{
    {"Standard System (Win95)", AfterMismatch::kTryTheNext},
    {"Power User (Win95)", AfterMismatch::kTryTheNext},
    {"Multimedia (Win95)", AfterMismatch::kStop},
    {"3D Games (Win95)", AfterMismatch::kStop},
    {"CD Writer (Win95)", AfterMismatch::kStop},
    {"Low Memory System (Win95)", AfterMismatch::kStop},
    {"Standard System (Win98/ME)", AfterMismatch::kTryTheNext},
    {"Power User (Win98/ME)", AfterMismatch::kTryTheNext},
    {"3D Games (Win98/ME)", AfterMismatch::kStop},
    {"CD Writer (Win98/ME)", AfterMismatch::kStop},
}};

/// Tested after the chain, whatever the chain found. If both match, the second one wins.
constexpr std::array<std::string_view, 2> kAfterChain{"Low Memory System (Win98/ME)",
                                                      "Multimedia (Win98/ME)"};

bool FixedSettingsFit(const CachePreset& preset, const CacheValues& values) {
  return values.chunk_kb == preset.chunk_kb && values.name_cache == preset.name_cache &&
         values.directory_cache == preset.directory_cache && values.min_enabled == preset.min_enabled &&
         (!preset.HasFixedMinimum() || values.min_cache_kb == preset.min.fixed_kb);
}

bool Fits(const CachePreset& preset, const CacheValues& values, double total_ram_mb) {
  const base::Result<CacheValues> wanted = preset.For(total_ram_mb);
  return wanted.Ok() && wanted.Value() == values;
}

}  // namespace

base::Result<std::int32_t> GetVCACHEValue(std::int32_t size_kb) {
  return base::ToInt32(base::RoundHalfEven(size_kb / kStepKb) * kStepKb);
}

base::Result<std::int32_t> CacheSize::For(double total_ram_mb) const {
  if (fixed_kb != 0) return fixed_kb;
  const base::Result<std::int32_t> size_kb =
      base::ToInt32(base::WholePart(total_ram_mb * kStepKb * (share_percent / 100.0)));
  return size_kb.Ok() ? GetVCACHEValue(size_kb.Value()) : size_kb;
}

bool CachePreset::HasFixedMinimum() const { return min.fixed_kb != 0 && min.fixed_kb == small_min.fixed_kb; }

base::Result<CacheValues> CachePreset::For(double total_ram_mb) const {
  const bool is_small = total_ram_mb < kSmallBelowMb;
  const base::Result<std::int32_t> min_kb = (is_small ? small_min : min).For(total_ram_mb);
  if (!min_kb.Ok()) return min_kb.Error();
  const base::Result<std::int32_t> max_kb = (is_small ? small_max : max).For(total_ram_mb);
  if (!max_kb.Ok()) return max_kb.Error();
  return CacheValues{.min_cache_kb = min_kb.Value(),
                     .min_enabled = min_enabled,
                     .max_cache_kb = max_kb.Value(),
                     .chunk_kb = chunk_kb,
                     .name_cache = name_cache,
                     .directory_cache = directory_cache};
}

std::span<const CachePreset> CachePresets() { return kPresets; }

const CachePreset* FindCachePreset(std::string_view name) {
  for (const CachePreset& preset : kPresets) {
    if (preset.name == name) return &preset;
  }
  return nullptr;
}

std::string_view RecogniseCachePreset(const CacheValues& values, double total_ram_mb) {
  std::string_view recognised = kUserDefined;
  for (const ChainLink& link : kChain) {
    const CachePreset& preset = *FindCachePreset(link.name);
    if (!FixedSettingsFit(preset, values)) continue;
    const bool fits = Fits(preset, values, total_ram_mb);
    if (fits) recognised = preset.name;
    if (fits || link.after_mismatch == AfterMismatch::kStop) break;
  }
  for (const std::string_view name : kAfterChain) {
    const CachePreset& preset = *FindCachePreset(name);
    if (FixedSettingsFit(preset, values) && Fits(preset, values, total_ram_mb)) recognised = preset.name;
  }
  return recognised;
}

}  // namespace qdix::tuning
