// Rounding, narrowing, checked arithmetic and the megabyte units.
#include "base/numbers.h"

#include <cmath>
#include <limits>

namespace qdix::base {

namespace {

template <class Whole>
Result<Whole> Narrow(double value) {
  const double rounded = RoundHalfEven(value);
  // NaN compares false with everything, so test for what fits and not for what does not.
  const bool fits =
      rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max();
  if (!fits) return kOverflow;
  return static_cast<Whole>(rounded);
}

}  // namespace

double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction < 0.5) return below;
  if (fraction > 0.5) return below + 1;
  if (fraction != 0.5) return value;  // NaN or infinite
  return std::floor(below / 2) * 2 == below ? below : below + 1;
}

double WholePart(double value) { return std::floor(value); }

double Truncate(double value) { return value < 0 ? -std::floor(-value) : std::floor(value); }

Result<std::uint8_t> ToByte(double value) { return Narrow<std::uint8_t>(value); }
Result<std::int16_t> ToInt16(double value) { return Narrow<std::int16_t>(value); }
Result<std::int32_t> ToInt32(double value) { return Narrow<std::int32_t>(value); }

std::int32_t ClampToInt32(double value, std::int32_t low, std::int32_t high) {
  const double rounded = RoundHalfEven(value);
  if (!(rounded > low)) return low;
  if (rounded >= high) return high;
  return static_cast<std::int32_t>(rounded);
}

Result<double> Divide(double a, double b) {
  if (b != 0) return a / b;
  return a == 0 ? kOverflow : kDivisionByZero;
}

Result<std::int32_t> SubtractInt32(std::int32_t a, std::int32_t b) {
  std::int32_t difference = 0;
  if (__builtin_sub_overflow(a, b, &difference)) return kOverflow;
  return difference;
}

Result<std::int32_t> AddInt32(std::int32_t a, std::int32_t b) {
  std::int32_t sum = 0;
  if (__builtin_add_overflow(a, b, &sum)) return kOverflow;
  return sum;
}

Result<std::int16_t> AddInt16(std::int16_t a, std::int16_t b) {
  std::int16_t sum = 0;
  if (__builtin_add_overflow(a, b, &sum)) return kOverflow;
  return sum;
}

double BytesToMemoryMb(double bytes) { return bytes / 1.024 / 1000000; }

double BytesToSwapFileThousandMb(double bytes) { return BytesToMemoryMb(bytes) / 1024; }

}  // namespace qdix::base
