// The machine's date and time.
#pragma once

#include <cstdint>
#include <string>

namespace qdix::os {

class Clock {
 public:
  /// Returns the local date and time in days since 30 December 1899, with the time of day as the fraction.
  [[nodiscard]] virtual double Now() = 0;

  /// Returns the milliseconds since Windows started. Wraps after 49.7 days.
  [[nodiscard]] virtual std::uint32_t GetTickCount() = 0;

  /// Returns a day in the user's long date format. `days` is counted as in Now; the time of day is ignored.
  /// Empty for a day that the system cannot show.
  [[nodiscard]] virtual std::string LongDate(double days) = 0;

 protected:
  ~Clock() = default;
};

}  // namespace qdix::os
