// Converts a double to its decimal digits by integer arithmetic only. The result is the same on every
// processor and in every precision mode.
#pragma once

#include <array>

namespace qdix::base {

/// A decimal number, 0.d1d2d3... x 10^exponent, where d1 is not 0. Zero has no digits. Holds 15 significant
/// digits, rounded half to even.
struct Decimal {
  static constexpr int kDigits = 15;

  bool is_negative = false;
  int exponent = 0;
  /// The digits as values 0 to 9. `count` leaves out trailing zeros.
  std::array<char, kDigits> digits{};
  int count = 0;
};

/// Returns the decimal digits of `value`, which must be finite.
[[nodiscard]] Decimal ToDecimal(double value);

}  // namespace qdix::base
