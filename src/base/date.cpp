#include "base/date.h"

#include "base/numbers.h"

namespace qdix::base {

namespace {

// The day numbers of 1 January 100 and 31 December 9999.
constexpr double kFirstDay = -657434;
constexpr double kLastDay = 2958465;

// The calendar repeats every 400 years. Years are counted from March, which makes the leap day the last day
// of its year.
constexpr int kDaysPerEra = 146097;
constexpr int kDaysPerCentury = 36524;
constexpr int kDaysPer4Years = 1461;
constexpr int kDaysPerYear = 365;
/// Days from 1 March of the year 0 to 30 December 1899.
constexpr int kEpochFromMarchYear0 = 693899;

}  // namespace

int DateToDays(int year, int month, int day) {
  const int march_year = month <= 2 ? year - 1 : year;
  const int march_month = month <= 2 ? month + 9 : month - 3;
  const int day_of_year = (153 * march_month + 2) / 5 + day - 1;  // the five months from March have 153 days
  return march_year * kDaysPerYear + march_year / 4 - march_year / 100 + march_year / 400 + day_of_year -
         kEpochFromMarchYear0;
}

std::optional<Date> DaysToDate(double days) {
  const double whole = Truncate(days);
  if (!(whole >= kFirstDay && whole <= kLastDay)) return std::nullopt;
  const int day_number = static_cast<int>(whole) + kEpochFromMarchYear0;
  const int era = day_number / kDaysPerEra;
  const int day_of_era = day_number % kDaysPerEra;
  const int year_of_era = (day_of_era - day_of_era / (kDaysPer4Years - 1) + day_of_era / kDaysPerCentury -
                           day_of_era / (kDaysPerEra - 1)) /
                          kDaysPerYear;
  const int day_of_year = day_of_era - (kDaysPerYear * year_of_era + year_of_era / 4 - year_of_era / 100);
  const int march_month = (5 * day_of_year + 2) / 153;
  Date date;
  date.day = day_of_year - (153 * march_month + 2) / 5 + 1;
  date.month = march_month < 10 ? march_month + 3 : march_month - 9;
  date.year = era * 400 + year_of_era + (date.month <= 2 ? 1 : 0);
  date.weekday = ((static_cast<int>(whole) % 7) + 7) % 7;
  return date;
}

}  // namespace qdix::base
