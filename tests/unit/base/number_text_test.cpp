// Numbers to texts and back.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "base/numbers.h"

namespace qdix::tests {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

struct Parsed {
  const char* text;
  double value;
};
class LeadingNumber : public testing::TestWithParam<Parsed> {};
TEST_P(LeadingNumber, IsRead) {
  EXPECT_EQ(base::ParseLeadingNumber(GetParam().text), GetParam().value) << GetParam().text;
}
INSTANTIATE_TEST_SUITE_P(
    Texts, LeadingNumber,
    testing::Values(Parsed{"64 MB", 64}, Parsed{"12 3", 12}, Parsed{"12:30", 12}, Parsed{"1/2", 1},
                    Parsed{"1,234", 1}, Parsed{"2.5", 2.5}, Parsed{"", 0}, Parsed{"abc", 0},
                    Parsed{"   7", 7}, Parsed{"-3", -3}, Parsed{"+3", 3}, Parsed{"- 3", 0}, Parsed{".5", 0.5},
                    Parsed{"5.", 5}, Parsed{".", 0}, Parsed{"-", 0}, Parsed{"1.2.3", 1.2},
                    Parsed{"1E3", 1000}, Parsed{"1d3", 1000}, Parsed{"1D+2x", 100}, Parsed{"1e-2", 0.01},
                    Parsed{"1E", 1}, Parsed{"1E+", 1}, Parsed{"1Ex", 1}, Parsed{"0x10", 0}, Parsed{"\t5", 0},
                    Parsed{"007", 7}, Parsed{"0.1", 0.1}, Parsed{"23.45", 23.45},
                    Parsed{"123456789012345", 123456789012345.0}, Parsed{"1E400", kLargest},
                    Parsed{"-1E400", -kLargest}, Parsed{"1E99999999999", kLargest},
                    Parsed{"1E-99999999999", 0}, Parsed{"1E-400", 0}, Parsed{"0E99999", 0}, Parsed{"E5", 0}));

TEST(LeadingNumberText, TooLongSaturatesAndNeverFails) {
  EXPECT_EQ(base::ParseLeadingNumber(std::string(70000, '9')), kLargest);
  EXPECT_EQ(base::ParseLeadingNumber("0." + std::string(70000, '0') + "1"), 0);
  EXPECT_EQ(base::ParseLeadingNumber(std::string("5\0"
                                                 "7",
                                                 3)),
            5);
}

TEST(LeadingNumberText, LeadingZerosTakeNoPlaceOfTheDigitsThatAreKept) {
  EXPECT_EQ(base::ParseLeadingNumber(std::string(40, '0') + "123"), 123);
  EXPECT_EQ(base::ParseLeadingNumber("0." + std::string(40, '0') + "123"), 1.23e-41);
}

TEST(LeadingNumberText, UpToFifteenDigitsAreRoundedCorrectly) {
  constexpr unsigned kSeed = 20261121;
  SCOPED_TRACE(kSeed);
  std::mt19937_64 random(kSeed);
  for (int i = 0; i < 20000; ++i) {
    const auto digits = static_cast<long long>(random() % 1000000000000000ULL);
    const int exponent = static_cast<int>(random() % 45) - 22;
    const std::string text = std::to_string(digits) + "E" + std::to_string(exponent);
    ASSERT_EQ(base::ParseLeadingNumber(text), std::strtod(text.c_str(), nullptr)) << text;
  }
}

TEST(LeadingNumberText, SmallestNumbersDoNotReadAsZero) {
  for (const char* text : {"1E-310", "123456789E-315", "5E-300", "1E-22"}) {
    const double expected = std::strtod(text, nullptr);
    EXPECT_NEAR(base::ParseLeadingNumber(text) / expected, 1, 1e-9) << text;
  }
}

TEST(IsNumber, TakesTheWholeText) {
  for (const char* text : {"1", " 1.5 ", "-2E3", ".5", "46347.5"}) EXPECT_TRUE(base::IsNumber(text)) << text;
  for (const char* text :
       {"e5", "-E3", "", " ", "x", "1x", "1 2", "--1", ".", "12 o'clock", "1E", "1E ", "1E+ "})
    EXPECT_FALSE(base::IsNumber(text)) << text;
  EXPECT_FALSE(base::IsNumber(std::string_view("1E5", 2))) << "the text ends before the 5";
}

struct Shown {
  double value;
  const char* text;
};
class Shortest : public testing::TestWithParam<Shown> {};
TEST_P(Shortest, IsShown) { EXPECT_EQ(base::ShortestText(GetParam().value), GetParam().text); }
INSTANTIATE_TEST_SUITE_P(
    Values, Shortest,
    testing::Values(Shown{0, "0"}, Shown{-0.0, "0"}, Shown{0.5, "0.5"}, Shown{-3, "-3"},
                    Shown{23.45, "23.45"}, Shown{0.1 + 0.2, "0.3"}, Shown{97.65625, "97.65625"},
                    Shown{1.0 / 3, "0.333333333333333"}, Shown{2.0 / 3, "0.666666666666667"},
                    Shown{100, "100"}, Shown{999999999999999, "999999999999999"}, Shown{1e15, "1E+15"},
                    Shown{1.5e15, "1.5E+15"}, Shown{-1e300, "-1E+300"}, Shown{1e-15, "0.000000000000001"},
                    Shown{1e-16, "1E-16"}, Shown{1.5e-15, "1.5E-15"}, Shown{0.00012, "0.00012"},
                    Shown{1e100, "1E+100"}, Shown{46347.5, "46347.5"}, Shown{5e-324, "4.94065645841247E-324"},
                    Shown{kLargest, "1.79769313486232E+308"},
                    Shown{1.23456789012345e-9, "1.23456789012345E-09"},
                    Shown{1.23456789012345e-10, "1.23456789012345E-10"}, Shown{999999999999999.9, "1E+15"}));

TEST(ShortestTextOf, NotANumber) {
  EXPECT_EQ(base::ShortestText(std::numeric_limits<double>::quiet_NaN()), "NaN");
  EXPECT_EQ(base::ShortestText(std::numeric_limits<double>::infinity()), "Infinity");
  EXPECT_EQ(base::ShortestText(-std::numeric_limits<double>::infinity()), "-Infinity");
}

/// Returns the fifteen significant digits that the C library gives a value.
std::string Digits15(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.14e", value);
  return text;
}

TEST(ShortestTextOf, AnyValueHasTheFifteenDigitsOfTheCLibrary) {
  constexpr unsigned kSeed = 386387;
  SCOPED_TRACE(kSeed);
  std::mt19937_64 random(kSeed);
  for (int i = 0; i < 20000; ++i) {
    const auto value = std::bit_cast<double>(std::uint64_t{random()});
    if (!std::isfinite(value)) continue;
    const std::string text = base::ShortestText(value);
    ASSERT_EQ(Digits15(std::strtod(text.c_str(), nullptr)), Digits15(value)) << text;
  }
}

class TwoDecimals : public testing::TestWithParam<Shown> {};
TEST_P(TwoDecimals, RoundHalfAwayFromZeroOnTheDecimalValue) {
  EXPECT_EQ(base::FormatTwoDecimals(GetParam().value), GetParam().text);
}
INSTANTIATE_TEST_SUITE_P(Values, TwoDecimals,
                         testing::Values(Shown{0, "0.00"}, Shown{0.005, "0.01"}, Shown{1.005, "1.01"},
                                         Shown{0.004, "0.00"}, Shown{-0.001, "0.00"}, Shown{-0.005, "-0.01"},
                                         Shown{23.4495, "23.45"}, Shown{9.995, "10.00"},
                                         Shown{99.999, "100.00"}, Shown{5, "5.00"}, Shown{2097.15, "2097.15"},
                                         Shown{1e20, "100000000000000000000.00"}, Shown{1e-300, "0.00"},
                                         Shown{0.994999, "0.99"}));

class Thousands : public testing::TestWithParam<Shown> {};
TEST_P(Thousands, AreSeparated) { EXPECT_EQ(base::FormatThousands(GetParam().value), GetParam().text); }
INSTANTIATE_TEST_SUITE_P(Values, Thousands,
                         testing::Values(Shown{0, ""}, Shown{0.4, ""}, Shown{-0.4, ""}, Shown{0.5, "1"},
                                         Shown{999, "999"}, Shown{1000, "1,000"}, Shown{65536, "65,536"},
                                         Shown{-1234, "-1,234"}, Shown{1234567.5, "1,234,568"},
                                         Shown{999999.5, "1,000,000"}, Shown{2097152, "2,097,152"}));

TEST(TextOf, WholeNumbersToTheirLimits) {
  EXPECT_EQ(base::TextOf(0), "0");
  EXPECT_EQ(base::TextOf(-1), "-1");
  EXPECT_EQ(base::TextOf(2147483647), "2147483647");
  EXPECT_EQ(base::TextOf(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(ParseBoolean, WordsInAnyCaseAndNumbers) {
  for (const char* text : {"True", "true", "TRUE", " True ", "1", "-1", "0.5", "2"})
    EXPECT_TRUE(base::ParseBoolean(text)) << text;
  for (const char* text : {"False", "false", "0", "0.0", "", "yes", "x", "1x"})
    EXPECT_FALSE(base::ParseBoolean(text)) << text;
}

}  // namespace
}  // namespace qdix::tests
