// The exact decimal digits of a double, by whole-number arithmetic only: the same on every processor and in
// every precision mode.
#pragma once

#include <array>

namespace qdix::base {

/// The value is 0.d1d2d3... x 10^exponent, with d1 not 0; zero has no digits. Rounded to 15 significant
/// digits, ties to even.
struct Decimal {
  static constexpr int kDigits = 15;

  bool is_negative = false;
  int exponent = 0;
  /// Digits 0 to 9, trailing zeros dropped from the count.
  std::array<char, kDigits> digits{};
  int count = 0;
};

/// `value` must be finite.
[[nodiscard]] Decimal ToDecimal(double value);

}  // namespace qdix::base
