// Sizes of a swap file as plain arithmetic.
#include "tuning/swap/swap_size.h"

#include <gtest/gtest.h>

namespace qdix::tuning {
namespace {

struct Proposal {
  double ram_mb;
  double free_mb;
  double proposed_mb;
};

class ProposedSwap : public testing::TestWithParam<Proposal> {};

TEST_P(ProposedSwap, IsThreeTimesTheMemoryOrTheFreeSpaceMinusTen) {
  EXPECT_EQ(ProposedSwapMb(GetParam().ram_mb, GetParam().free_mb), GetParam().proposed_mb);
}

// With 1,000 MB of memory, 3 MB free are exactly a thousandth of the 3,000 MB; 4 MB are just above it.
INSTANTIATE_TEST_SUITE_P(Table, ProposedSwap,
                         testing::Values(Proposal{64, 2000, 192}, Proposal{64, 1, 192}, Proposal{64, 0, -10},
                                         Proposal{31.9, 5, 95}, Proposal{1000, 3, -7},
                                         Proposal{1000, 4, 3000}, Proposal{512, 2, 1536},
                                         Proposal{512, 1, -9}, Proposal{-100, 0, -300}));

struct Suggestion {
  double ram_mb;
  int suggested_mb;
};

class SuggestedSwap : public testing::TestWithParam<Suggestion> {};

TEST_P(SuggestedSwap, IsTwoToThreeTimesTheMemory) {
  const auto size = SuggestedSwapMb(GetParam().ram_mb);
  ASSERT_TRUE(size.Ok());
  EXPECT_EQ(size.Value(), GetParam().suggested_mb);
}

INSTANTIATE_TEST_SUITE_P(Table, SuggestedSwap,
                         testing::Values(Suggestion{8, 24}, Suggestion{31.9, 95}, Suggestion{64, 192},
                                         Suggestion{70, 210}, Suggestion{70.01, 175}, Suggestion{128, 320},
                                         Suggestion{140, 350}, Suggestion{140.01, 322}, Suggestion{256, 588},
                                         Suggestion{512, 1177}, Suggestion{-100, -300}));

TEST(SuggestedSwapOfTooMuchMemory, IsAnOverflow) {
  EXPECT_EQ(SuggestedSwapMb(14247).Error(), base::kOverflow);
  EXPECT_EQ(SuggestedSwapMb(14246).Value(), 32765);
}

}  // namespace
}  // namespace qdix::tuning
