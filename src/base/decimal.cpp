#include "base/decimal.h"

#include <bit>
#include <cstdint>

namespace qdix::base {

namespace {

constexpr std::uint32_t kLimbBase = 10000;
constexpr int kDigitsPerLimb = 4;
/// 800 digits. The longest expansion, that of the smallest doubles, has 767.
constexpr int kLimbs = 200;

/// A whole number long enough for any double, in limbs of four decimal digits, least significant limb first.
class LongNumber {
 public:
  void MultiplyAdd(std::uint32_t factor, std::uint32_t summand) {
    std::uint32_t carry = summand;
    for (int i = 0; i < used_; ++i) {
      const std::uint32_t product = limbs_[static_cast<std::size_t>(i)] * factor + carry;
      limbs_[static_cast<std::size_t>(i)] = static_cast<std::uint16_t>(product % kLimbBase);
      carry = product / kLimbBase;
    }
    for (; carry != 0; carry /= kLimbBase) {
      limbs_[static_cast<std::size_t>(used_++)] = static_cast<std::uint16_t>(carry % kLimbBase);
    }
  }

  /// The number must not be 0.
  [[nodiscard]] int DigitCount() const {
    int count = (used_ - 1) * kDigitsPerLimb;
    for (std::uint32_t top = limbs_[static_cast<std::size_t>(used_ - 1)]; top != 0; top /= 10) ++count;
    return count;
  }

  /// Returns the decimal digit at `place`; 0 is the lowest place.
  [[nodiscard]] int Digit(int place) const {
    std::uint32_t limb = limbs_[static_cast<std::size_t>(place / kDigitsPerLimb)];
    for (int i = place % kDigitsPerLimb; i > 0; --i) limb /= 10;
    return static_cast<int>(limb % 10);
  }

 private:
  std::array<std::uint16_t, kLimbs> limbs_{};
  int used_ = 0;
};

/// The magnitude of a double: mantissa x 2^exponent. The mantissa is odd or 0.
struct Binary {
  std::uint64_t mantissa;
  int exponent;
};

Binary Split(double value) {
  constexpr int kMantissaBits = 52;
  constexpr int kExponentBias = 1075;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int biased = static_cast<int>((bits >> kMantissaBits) & 0x7FFU);
  Binary parts{bits & ((std::uint64_t{1} << kMantissaBits) - 1), (biased == 0 ? 1 : biased) - kExponentBias};
  if (biased != 0) parts.mantissa |= std::uint64_t{1} << kMantissaBits;
  while (parts.mantissa != 0 && (parts.mantissa & 1U) == 0) {
    parts.mantissa >>= 1U;
    ++parts.exponent;
  }
  return parts;
}

/// Multiplies by base^count, by `step` factors at a time while that many are left.
void MultiplyPower(LongNumber& number, std::uint32_t base, int count, std::uint32_t base_to_step, int step) {
  for (; count >= step; count -= step) number.MultiplyAdd(base_to_step, 0);
  for (; count > 0; --count) number.MultiplyAdd(base, 0);
}

/// True if the digits below `place` round the digit at `place` up: they make more than half, or exactly half
/// and the digit is odd.
bool RoundsUp(const LongNumber& number, int place) {
  if (place <= 0) return false;
  const int next = number.Digit(place - 1);
  if (next != 5) return next > 5;
  for (int lower = place - 2; lower >= 0; --lower) {
    if (number.Digit(lower) != 0) return true;
  }
  return number.Digit(place) % 2 != 0;
}

/// Adds one to the last digit. A carry out of the first digit leaves a 1 and raises the exponent.
void Increment(Decimal& decimal) {
  for (int i = Decimal::kDigits - 1; i >= 0; --i) {
    char& digit = decimal.digits[static_cast<std::size_t>(i)];
    if (digit < 9) {
      ++digit;
      return;
    }
    digit = 0;
  }
  decimal.digits[0] = 1;
  ++decimal.exponent;
}

}  // namespace

Decimal ToDecimal(double value) {
  Decimal decimal;
  decimal.is_negative = value < 0;
  const Binary binary = Split(value);
  if (binary.mantissa == 0) return decimal;

  // m x 2^-e is m x 5^e with the decimal point moved e places. Each multiplication takes six factors of 5 or
  // twelve factors of 2.
  LongNumber number;
  for (int shift = 48; shift >= 0; shift -= 16) {
    number.MultiplyAdd(
        65536, static_cast<std::uint32_t>((binary.mantissa >> static_cast<unsigned>(shift)) & 0xFFFFU));
  }
  if (binary.exponent < 0) {
    MultiplyPower(number, 5, -binary.exponent, 15625, 6);
  } else {
    MultiplyPower(number, 2, binary.exponent, 4096, 12);
  }

  const int count = number.DigitCount();
  decimal.exponent = count + (binary.exponent < 0 ? binary.exponent : 0);
  for (int i = 0; i < Decimal::kDigits && i < count; ++i) {
    decimal.digits[static_cast<std::size_t>(i)] = static_cast<char>(number.Digit(count - 1 - i));
  }
  if (RoundsUp(number, count - Decimal::kDigits)) Increment(decimal);
  decimal.count = Decimal::kDigits;
  while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == 0)
    --decimal.count;
  return decimal;
}

}  // namespace qdix::base
