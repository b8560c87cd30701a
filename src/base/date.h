// Converts day numbers to calendar dates and back. A day number counts the days since 30 December 1899.
#pragma once

#include <optional>

namespace qdix::base {

struct Date {
  /// 100 to 9999, Gregorian.
  int year = 0;
  /// 1 to 12.
  int month = 0;
  /// 1 to 31.
  int day = 0;
  /// 0 is Saturday, the weekday of day 0.
  int weekday = 0;
};

/// Returns the calendar date of a day number. Truncates the fraction, which is the time of day, toward zero,
/// also before 1899. Returns nullopt outside the years 100 to 9999.
[[nodiscard]] std::optional<Date> DaysToDate(double days);

/// Returns the day number of a calendar date.
[[nodiscard]] int DateToDays(int year, int month, int day);

}  // namespace qdix::base
