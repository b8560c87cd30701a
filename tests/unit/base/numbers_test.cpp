// Rounding, narrowing and checked arithmetic.
#include "base/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace qdix::tests {
namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Rounded {
  double value;
  double result;
};
class HalfEven : public testing::TestWithParam<Rounded> {};
TEST_P(HalfEven, GoesToTheEvenNeighbour) {
  EXPECT_EQ(base::RoundHalfEven(GetParam().value), GetParam().result);
}
INSTANTIATE_TEST_SUITE_P(Values, HalfEven,
                         testing::Values(Rounded{0.5, 0}, Rounded{1.5, 2}, Rounded{2.5, 2}, Rounded{-0.5, 0},
                                         Rounded{-1.5, -2}, Rounded{-2.5, -2}, Rounded{2.4999, 2},
                                         Rounded{2.5001, 3}, Rounded{31.5, 32}, Rounded{12.5, 12},
                                         Rounded{65.536, 66}, Rounded{1e300, 1e300},
                                         Rounded{4503599627370497.0, 4503599627370497.0}));

TEST(WholePart, RoundsDownAndTruncateRoundsTowardZero) {
  EXPECT_EQ(base::WholePart(2.9), 2);
  EXPECT_EQ(base::WholePart(-2.1), -3);
  EXPECT_EQ(base::Truncate(2.9), 2);
  EXPECT_EQ(base::Truncate(-2.9), -2);
}

TEST(Narrowing, ReachesTheLimitsOfEachWidthAndOverflowsBeyond) {
  EXPECT_EQ(base::ToByte(255.5).ValueOr(1), 1) << "255.5 rounds to 256";
  EXPECT_EQ(base::ToByte(254.5).Value(), 254);
  EXPECT_EQ(base::ToByte(-0.5).Value(), 0);
  EXPECT_EQ(base::ToByte(-1).Error(), base::kOverflow);
  EXPECT_EQ(base::ToInt16(32767).Value(), 32767);
  EXPECT_EQ(base::ToInt16(32767.5).Error(), base::kOverflow);
  EXPECT_EQ(base::ToInt16(-32768.5).Value(), -32768);
  EXPECT_EQ(base::ToInt32(2147483647.4).Value(), 2147483647);
  EXPECT_EQ(base::ToInt32(2147483647.5).Error(), base::kOverflow);
  EXPECT_EQ(base::ToInt32(-2147483648.5).Value(), std::numeric_limits<std::int32_t>::min());
}

TEST(Narrowing, NotANumberOverflows) {
  for (const double value : {kNotANumber, kInfinity, -kInfinity, 1e300}) {
    EXPECT_EQ(base::ToByte(value).Error(), base::kOverflow);
    EXPECT_EQ(base::ToInt16(value).Error(), base::kOverflow);
    EXPECT_EQ(base::ToInt32(value).Error(), base::kOverflow);
  }
}

TEST(Clamping, TakesTheNearestLimitForAnyDouble) {
  EXPECT_EQ(base::ClampToInt32(5.5, 0, 10), 6);
  EXPECT_EQ(base::ClampToInt32(-1e300, 1, 32), 1);
  EXPECT_EQ(base::ClampToInt32(1e300, 1, 32), 32);
  EXPECT_EQ(base::ClampToInt32(kInfinity, 1, 32), 32);
  EXPECT_EQ(base::ClampToInt32(kNotANumber, 1, 32), 1);
}

TEST(Division, ByZeroHasTwoErrors) {
  EXPECT_EQ(base::Divide(1, 4).Value(), 0.25);
  EXPECT_EQ(base::Divide(1, 0).Error(), base::kDivisionByZero);
  EXPECT_EQ(base::Divide(-1, 0).Error(), base::kDivisionByZero);
  EXPECT_EQ(base::Divide(0, 0).Error(), base::kOverflow);
}

TEST(CheckedArithmetic, OverflowsInsteadOfWrapping) {
  constexpr auto kLow = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(base::SubtractInt32(5, 7).Value(), -2);
  EXPECT_EQ(base::SubtractInt32(2147483647, -1).Error(), base::kOverflow);
  EXPECT_EQ(base::SubtractInt32(kLow, 1).Error(), base::kOverflow);
  EXPECT_EQ(base::AddInt16(32766, 1).Value(), 32767);
  EXPECT_EQ(base::AddInt16(32767, 1).Error(), base::kOverflow);
}

TEST(Megabytes, AreThreeUnits) {
  EXPECT_DOUBLE_EQ(base::BytesToMemoryMb(1024000), 1);
  EXPECT_DOUBLE_EQ(base::BytesToSwapFileThousandMb(1048576) * 1000, 1);
  EXPECT_EQ(base::kReleaseMbBytes, 1040000);
}

}  // namespace
}  // namespace qdix::tests
