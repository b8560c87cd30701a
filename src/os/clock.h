// Date and time of the machine.
#pragma once

#include <cstdint>
#include <string>

namespace qdix::os {

class Clock {
 public:
  virtual ~Clock() = default;

  /// Local date and time in days since 30 December 1899, the time of day as the fraction.
  [[nodiscard]] virtual double Now() = 0;

  /// Milliseconds since the system started; wraps after 49.7 days.
  [[nodiscard]] virtual std::uint32_t GetTickCount() = 0;

  /// The day in the user's long date picture. `days` as Now gives it, its time of day ignored; a day that the
  /// system cannot show gives an empty text.
  [[nodiscard]] virtual std::string LongDate(double days) = 0;
};

}  // namespace qdix::os
