// Converts the system's time records to the day numbers that the program uses.
#pragma once

#include <windows.h>

#include "base/date.h"

namespace qdix::os::win32 {

/// Returns the days since 30 December 1899 with the time of day as the fraction, to the second.
[[nodiscard]] inline double DaysOf(const SYSTEMTIME& time) {
  constexpr double kSecondsPerDay = 24.0 * 60 * 60;
  const int seconds = (time.wHour * 60 + time.wMinute) * 60 + time.wSecond;
  return base::DateToDays(time.wYear, time.wMonth, time.wDay) + seconds / kSecondsPerDay;
}

}  // namespace qdix::os::win32
