// Days since 30 December 1899 and the calendar.
#include "base/date.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace qdix::base {
namespace {

struct KnownDay {
  int number;
  int year;
  int month;
  int day;
  /// 0 is Saturday.
  int weekday;
};

constexpr KnownDay kKnownDays[] = {
    {-657434, 100, 1, 1, 6},    {-657376, 100, 2, 28, 1}, {-657375, 100, 3, 1, 2}, {-115858, 1582, 10, 15, 6},
    {-109205, 1601, 1, 1, 2},   {-1, 1899, 12, 29, 6},    {0, 1899, 12, 30, 0},    {1, 1899, 12, 31, 1},
    {2, 1900, 1, 1, 2},         {60, 1900, 2, 28, 4},     {61, 1900, 3, 1, 5},     {25569, 1970, 1, 1, 5},
    {34935, 1995, 8, 24, 5},    {36525, 1999, 12, 31, 6}, {36526, 2000, 1, 1, 0},  {36585, 2000, 2, 29, 3},
    {36586, 2000, 3, 1, 4},     {46347, 2026, 11, 21, 0}, {73109, 2100, 2, 28, 1}, {73110, 2100, 3, 1, 2},
    {2958465, 9999, 12, 31, 6},
};

class KnownDays : public testing::TestWithParam<KnownDay> {};

TEST_P(KnownDays, NumberGivesDate) {
  const KnownDay& known = GetParam();
  const auto date = DaysToDate(known.number);
  ASSERT_TRUE(date.has_value());
  EXPECT_EQ(date->year, known.year);
  EXPECT_EQ(date->month, known.month);
  EXPECT_EQ(date->day, known.day);
  EXPECT_EQ(date->weekday, known.weekday);
}

TEST_P(KnownDays, DateGivesNumber) {
  const KnownDay& known = GetParam();
  EXPECT_EQ(DateToDays(known.year, known.month, known.day), known.number);
}

INSTANTIATE_TEST_SUITE_P(Table, KnownDays, testing::ValuesIn(kKnownDays));

TEST(DateTest, EveryDayFollowsTheDayBefore) {
  constexpr int kMonthDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  int year = 100;
  int month = 1;
  int day = 1;
  for (int number = -657434; number <= 2958465; ++number) {
    const auto date = DaysToDate(number);
    ASSERT_TRUE(date.has_value() && date->year == year && date->month == month && date->day == day &&
                date->weekday == ((number % 7) + 7) % 7 && DateToDays(year, month, day) == number)
        << number;
    const bool is_leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    const int month_days = kMonthDays[month - 1] + (month == 2 && is_leap ? 1 : 0);
    if (++day <= month_days) continue;
    day = 1;
    if (++month <= 12) continue;
    month = 1;
    ++year;
  }
  EXPECT_EQ(year, 10000);
}

TEST(DateTest, TimeOfDayIsTruncatedTowardZero) {
  EXPECT_EQ(DaysToDate(46347.999)->day, 21);
  EXPECT_EQ(DaysToDate(0.75)->day, 30);
  EXPECT_EQ(DaysToDate(-0.75)->day, 30);
  EXPECT_EQ(DaysToDate(-1.25)->day, 29);
  EXPECT_EQ(DaysToDate(-1.75)->day, 29);
}

TEST(DateTest, FirstAndLastDayKeepTheirWholeDay) {
  EXPECT_TRUE(DaysToDate(2958465.999).has_value());
  EXPECT_TRUE(DaysToDate(-657434.999).has_value());
}

TEST(DateTest, NothingOutsideTheYears100To9999) {
  for (const double days : {2958466.0, -657435.0, 1e10, -1e10, 1e300, -1e300}) {
    EXPECT_FALSE(DaysToDate(days).has_value()) << days;
  }
}

TEST(DateTest, NothingForNotANumber) {
  EXPECT_FALSE(DaysToDate(std::nan("")).has_value());
  EXPECT_FALSE(DaysToDate(std::numeric_limits<double>::infinity()).has_value());
  EXPECT_FALSE(DaysToDate(-std::numeric_limits<double>::infinity()).has_value());
}

}  // namespace
}  // namespace qdix::base
