// Dates as days since 30 December 1899, and the calendar.
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

/// The calendar day of a date-time number. The fraction is the time of day and is cut off toward zero, also
/// before 1899. Nothing outside the years 100 to 9999.
[[nodiscard]] std::optional<Date> DateOfDays(double days);

/// Days since 30 December 1899 of a day of the calendar.
[[nodiscard]] int DaysOfDate(int year, int month, int day);

}  // namespace qdix::base
