// The presets of the disk cache: what they set on machines of every size, and how they are recognised.
#include "tuning/cache/cache_presets.h"

#include <gtest/gtest.h>

#include "base/numbers.h"

namespace qdix::tests {
namespace {

using tuning::CacheValues;

constexpr double kSizesMb[] = {8, 16, 31.9, 32, 32.99, 33, 48, 64, 96, 128, 255, 256, 384, 512};

struct Applied {
  double total_ram_mb;
  const char* name;
  CacheValues values;
};

void PrintTo(const Applied& applied, std::ostream* out) {
  *out << applied.name << " at " << applied.total_ram_mb << " MB";
}

class AppliedPreset : public testing::TestWithParam<Applied> {};

TEST_P(AppliedPreset, SetsItsRowOfTheTable) {
  const tuning::CachePreset* const preset = tuning::FindCachePreset(GetParam().name);
  ASSERT_NE(preset, nullptr);
  const auto values = preset->For(GetParam().total_ram_mb);
  ASSERT_TRUE(values.Ok());
  EXPECT_EQ(values.Value().min_cache_kb, GetParam().values.min_cache_kb);
  EXPECT_EQ(values.Value().min_enabled, GetParam().values.min_enabled);
  EXPECT_EQ(values.Value().max_cache_kb, GetParam().values.max_cache_kb);
  EXPECT_EQ(values.Value().chunk_kb, GetParam().values.chunk_kb);
  EXPECT_EQ(values.Value().name_cache, GetParam().values.name_cache);
  EXPECT_EQ(values.Value().directory_cache, GetParam().values.directory_cache);
}

// Worked out independently of the program: minimum, whether it is enabled, maximum, chunk, name and directory
// cache.
INSTANTIATE_TEST_SUITE_P(
    Table, AppliedPreset,
    testing::Values(Applied{16, "Standard System (Win95)", {512, false, 2048, 512, 2048, 64}},
                    Applied{16, "Standard System (Win98/ME)", {512, false, 2560, 1024, 2048, 64}},
                    Applied{16, "Power User (Win95)", {512, false, 2048, 512, 4096, 96}},
                    Applied{16, "Power User (Win98/ME)", {512, false, 2048, 2048, 4096, 96}},
                    Applied{16, "Multimedia (Win95)", {1024, true, 1536, 4096, 6144, 128}},
                    Applied{16, "Multimedia (Win98/ME)", {1024, true, 1536, 4096, 6144, 128}},
                    Applied{16, "3D Games (Win95)", {512, false, 1024, 4096, 2048, 48}},
                    Applied{16, "3D Games (Win98/ME)", {512, false, 1024, 1024, 2048, 48}},
                    Applied{16, "CD Writer (Win95)", {1024, true, 1024, 2048, 6144, 128}},
                    Applied{16, "CD Writer (Win98/ME)", {1024, true, 1024, 512, 6144, 128}},
                    Applied{16, "Low Memory System (Win95)", {512, false, 1536, 512, 337, 16}},
                    Applied{16, "Low Memory System (Win98/ME)", {512, false, 1536, 512, 337, 16}},
                    Applied{32.99, "Multimedia (Win95)", {1024, true, 3072, 4096, 6144, 128}},
                    Applied{32.99, "CD Writer (Win95)", {1024, true, 1024, 2048, 6144, 128}},
                    Applied{32.99, "Low Memory System (Win95)", {512, false, 3072, 512, 337, 16}},
                    Applied{33, "Multimedia (Win95)", {2048, true, 4096, 4096, 6144, 128}},
                    Applied{33, "Multimedia (Win98/ME)", {1024, true, 3072, 4096, 6144, 128}},
                    Applied{33, "3D Games (Win95)", {512, false, 1536, 4096, 2048, 48}},
                    Applied{33, "3D Games (Win98/ME)", {512, false, 2048, 1024, 2048, 48}},
                    Applied{33, "CD Writer (Win95)", {3072, true, 3072, 2048, 6144, 128}},
                    Applied{33, "Low Memory System (Win98/ME)", {512, false, 1536, 512, 337, 16}},
                    Applied{64, "Standard System (Win95)", {512, false, 8192, 512, 2048, 64}},
                    Applied{64, "Standard System (Win98/ME)", {512, false, 10240, 1024, 2048, 64}},
                    Applied{64, "Power User (Win95)", {512, false, 8192, 512, 4096, 96}},
                    Applied{64, "Power User (Win98/ME)", {512, false, 8192, 2048, 4096, 96}},
                    Applied{64, "Multimedia (Win95)", {4096, true, 8192, 4096, 6144, 128}},
                    Applied{64, "Multimedia (Win98/ME)", {2048, true, 6144, 4096, 6144, 128}},
                    Applied{64, "3D Games (Win95)", {512, false, 3072, 4096, 2048, 48}},
                    Applied{64, "3D Games (Win98/ME)", {512, false, 4096, 1024, 2048, 48}},
                    Applied{64, "CD Writer (Win95)", {6144, true, 6144, 2048, 6144, 128}},
                    Applied{64, "CD Writer (Win98/ME)", {6144, true, 6144, 512, 6144, 128}},
                    Applied{64, "Low Memory System (Win95)", {512, false, 4096, 512, 337, 16}},
                    Applied{64, "Low Memory System (Win98/ME)", {512, false, 3072, 512, 337, 16}},
                    Applied{512, "Standard System (Win98/ME)", {512, false, 81408, 1024, 2048, 64}},
                    Applied{512, "Multimedia (Win95)", {31232, true, 65536, 4096, 6144, 128}},
                    Applied{512, "CD Writer (Win98/ME)", {49664, true, 49664, 512, 6144, 128}},
                    Applied{512, "Low Memory System (Win98/ME)", {512, false, 23552, 512, 337, 16}}));

TEST(CachePresets, AreOfferedInOrder) {
  std::vector<std::string_view> names;
  for (const tuning::CachePreset& preset : tuning::CachePresets()) names.push_back(preset.name);
  EXPECT_EQ(names, (std::vector<std::string_view>{
                       "Standard System (Win95)", "Standard System (Win98/ME)", "Power User (Win95)",
                       "Power User (Win98/ME)", "Multimedia (Win95)", "Multimedia (Win98/ME)",
                       "3D Games (Win95)", "3D Games (Win98/ME)", "CD Writer (Win95)", "CD Writer (Win98/ME)",
                       "Low Memory System (Win95)", "Low Memory System (Win98/ME)"}));
  EXPECT_EQ(tuning::FindCachePreset("User-defined"), nullptr);
  EXPECT_EQ(tuning::FindCachePreset(""), nullptr);
}

TEST(CachePresets, StayInsideTheRangesOfTheSlidersOnEveryMachine) {
  for (const double mb : kSizesMb) {
    const double highest_kb = base::RoundHalfEven(mb * 500);
    for (const tuning::CachePreset& preset : tuning::CachePresets()) {
      SCOPED_TRACE(std::string(preset.name) + " at " + std::to_string(mb));
      const CacheValues values = preset.For(mb).Value();
      EXPECT_GE(values.min_cache_kb, 512);
      EXPECT_LE(values.min_cache_kb, highest_kb);
      EXPECT_GE(values.max_cache_kb, 512);
      EXPECT_LE(values.max_cache_kb, highest_kb);
      EXPECT_LE(values.min_enabled ? values.min_cache_kb : 0, values.max_cache_kb);
      EXPECT_EQ(values.max_cache_kb % 512, 0);
    }
  }
}

/// On a small machine two pairs of presets have the same values.
std::string_view NameThatIsShown(std::string_view applied, double total_ram_mb) {
  if (total_ram_mb < 33 && applied == "Low Memory System (Win95)") return "Low Memory System (Win98/ME)";
  if (total_ram_mb < 33 && applied == "Multimedia (Win95)") return "Multimedia (Win98/ME)";
  return applied;
}

TEST(CachePresets, AreRecognisedOnEveryMachineExceptForTwoTiesOnSmallOnes) {
  for (const double mb : kSizesMb) {
    for (const tuning::CachePreset& preset : tuning::CachePresets()) {
      EXPECT_EQ(tuning::RecogniseCachePreset(preset.For(mb).Value(), mb), NameThatIsShown(preset.name, mb))
          << mb;
    }
  }
}

TEST(CachePresets, AnyOtherValueIsUserDefined) {
  for (const tuning::CachePreset& preset : tuning::CachePresets()) {
    SCOPED_TRACE(preset.name);
    const CacheValues applied = preset.For(64).Value();
    for (std::int32_t CacheValues::*const member :
         {&CacheValues::min_cache_kb, &CacheValues::max_cache_kb, &CacheValues::chunk_kb,
          &CacheValues::name_cache, &CacheValues::directory_cache}) {
      CacheValues changed = applied;
      changed.*member += 1;
      EXPECT_EQ(tuning::RecogniseCachePreset(changed, 64), "User-defined");
    }
    CacheValues changed = applied;
    changed.min_enabled = !applied.min_enabled;
    EXPECT_EQ(tuning::RecogniseCachePreset(changed, 64), "User-defined");
  }
}

TEST(CachePresets, SettingsOf3DGamesWithAnotherMaximumAreUserDefined) {
  EXPECT_EQ(tuning::RecogniseCachePreset({512, false, 4096, 4096, 2048, 48}, 64), "User-defined");
  EXPECT_EQ(tuning::RecogniseCachePreset({512, false, 3072, 4096, 2048, 48}, 64), "3D Games (Win95)");
}

TEST(CachePresets, ValuesOfAnotherMachineAreUserDefined) {
  const CacheValues at_64 = tuning::FindCachePreset("Power User (Win98/ME)")->For(64).Value();
  EXPECT_EQ(tuning::RecogniseCachePreset(at_64, 128), "User-defined");
}

TEST(CachePresets, MemoryBeyondAllLimitsOverflowsAndMatchesNoPreset) {
  EXPECT_EQ(tuning::FindCachePreset("Standard System (Win95)")->For(1e12).Error(), base::kOverflow);
  EXPECT_EQ(tuning::RecogniseCachePreset({512, false, 1024, 512, 2048, 64}, 1e12), "User-defined");
}

struct Snapped {
  std::int32_t size_kb;
  std::int32_t snapped_kb;
};
class VcacheValue : public testing::TestWithParam<Snapped> {};
TEST_P(VcacheValue, IsTheNearestMultipleOf512WithTiesToEven) {
  const auto snapped = tuning::GetVCACHEValue(GetParam().size_kb);
  ASSERT_TRUE(snapped.Ok());
  EXPECT_EQ(snapped.Value(), GetParam().snapped_kb);
}
INSTANTIATE_TEST_SUITE_P(Values, VcacheValue,
                         testing::Values(Snapped{0, 0}, Snapped{256, 0}, Snapped{257, 512},
                                         Snapped{768, 1024}, Snapped{1280, 1024}, Snapped{10158, 10240},
                                         Snapped{8192, 8192}, Snapped{-256, 0}, Snapped{-768, -1024},
                                         Snapped{2147483391, 2147483136}));

TEST(VcacheValueLimit, OverflowsAboveTheLastMultiple) {
  EXPECT_EQ(tuning::GetVCACHEValue(2147483647).Error(), base::kOverflow);
}

}  // namespace
}  // namespace qdix::tests
