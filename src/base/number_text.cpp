// Converts numbers to text and back.
#include <cmath>
#include <limits>

#include "base/decimal.h"
#include "base/numbers.h"
#include "base/text.h"

namespace qdix::base {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// A number that was read from the start of a text. `used` counts the characters read; it is 0 if there was
/// no digit.
struct ParsedNumber {
  double value = 0;
  std::size_t used = 0;
};

/// Returns digits x 10^exponent. For up to 15 digits and powers up to 10^22 this is one multiplication or
/// division by an exact power, so the result is correctly rounded. Beyond that the last digit can be off by a
/// few units. No figure in the program comes near that.
double Scale(double digits, int exponent) {
  constexpr int kLargestExactPower = 22;
  constexpr int kSmallestExponent = -350;  // below this, up to 17 digits are 0 as a double
  if (digits == 0 || exponent < kSmallestExponent) return 0;
  while (exponent != 0) {
    int step = exponent < 0 ? -exponent : exponent;
    if (step > kLargestExactPower) step = kLargestExactPower;
    double power = 1;
    for (int i = 0; i < step; ++i) power *= 10.0;
    if (exponent > 0) {
      if (digits > std::numeric_limits<double>::max() / power) return std::numeric_limits<double>::max();
      digits *= power;
      exponent -= step;
    } else {
      digits /= power;
      exponent += step;
    }
  }
  return digits;
}

/// Reads the exponent after the letter at `at` and moves `at` behind it. Returns 0 and leaves `at` alone if
/// no digit follows.
int ParseExponent(std::string_view text, std::size_t& at) {
  constexpr int kBeyondEveryDouble = 100000;
  std::size_t next = at + 1;
  bool is_negative = false;
  if (next < text.size() && (text[next] == '+' || text[next] == '-')) is_negative = text[next++] == '-';
  if (next >= text.size() || !IsDigit(text[next])) return 0;
  int exponent = 0;
  for (; next < text.size() && IsDigit(text[next]); ++next) {
    if (exponent < kBeyondEveryDouble) exponent = exponent * 10 + (text[next] - '0');
  }
  at = next;
  return is_negative ? -exponent : exponent;
}

ParsedNumber Parse(std::string_view text) {
  constexpr int kKeptDigits = 17;
  std::size_t at = 0;
  while (at < text.size() && text[at] == ' ') ++at;
  bool is_negative = false;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) is_negative = text[at++] == '-';

  std::int64_t digits = 0;
  int significant = 0;
  int exponent = 0;
  bool has_digit = false;
  bool after_point = false;
  for (; at < text.size(); ++at) {
    if (text[at] == '.' && !after_point) {
      after_point = true;
      continue;
    }
    if (!IsDigit(text[at])) break;
    has_digit = true;
    if (significant < kKeptDigits) {
      digits = digits * 10 + (text[at] - '0');
      if (digits != 0) ++significant;
      if (after_point) --exponent;
    } else if (!after_point) {
      ++exponent;
    }
  }
  if (!has_digit) return {};
  if (at < text.size() && std::string_view("eEdD").find(text[at]) != std::string_view::npos) {
    exponent += ParseExponent(text, at);
  }
  const double value = Scale(static_cast<double>(digits), exponent);
  return {is_negative ? -value : value, at};
}

char DigitAt(const Decimal& decimal, int index) {
  return index < 0 || index >= decimal.count
             ? '0'
             : static_cast<char>('0' + decimal.digits[static_cast<std::size_t>(index)]);
}

std::string FixedText(const Decimal& decimal) {
  std::string text;
  for (int i = 0; i < decimal.exponent; ++i) text += DigitAt(decimal, i);
  if (text.empty()) text = "0";
  if (decimal.count <= decimal.exponent) return text;
  text += '.';
  for (int i = decimal.exponent < 0 ? decimal.exponent : 0; i < 0; ++i) text += '0';
  for (int i = decimal.exponent > 0 ? decimal.exponent : 0; i < decimal.count; ++i)
    text += DigitAt(decimal, i);
  return text;
}

std::string ScientificText(const Decimal& decimal) {
  std::string text(1, DigitAt(decimal, 0));
  if (decimal.count > 1) text += '.';
  for (int i = 1; i < decimal.count; ++i) text += DigitAt(decimal, i);
  int power = decimal.exponent - 1;
  text += power < 0 ? "E-" : "E+";
  if (power < 0) power = -power;
  if (power < 10) text += '0';
  return text + TextOf(power);
}

/// Returns the digits of a value that is rounded half away from zero to `decimals` places, without the point.
/// There are at least decimals + 1 digits.
std::string RoundedDigits(const Decimal& decimal, int decimals) {
  const int kept = decimal.exponent + decimals;
  std::string digits;
  for (int i = 0; i < kept; ++i) digits += DigitAt(decimal, i);
  if (kept >= 0 && DigitAt(decimal, kept) >= '5') {
    std::size_t at = digits.size();
    while (at > 0 && digits[at - 1] == '9') digits[--at] = '0';
    if (at > 0) {
      ++digits[at - 1];
    } else {
      digits.insert(digits.begin(), '1');
    }
  }
  while (digits.size() < static_cast<std::size_t>(decimals) + 1) digits.insert(digits.begin(), '0');
  return digits;
}

bool IsZero(std::string_view digits) { return digits.find_first_not_of('0') == std::string_view::npos; }

}  // namespace

double ParseLeadingNumber(std::string_view text) { return Parse(text).value; }

bool IsNumber(std::string_view text) {
  const ParsedNumber number = Parse(text);
  return number.used != 0 && text.substr(number.used).find_first_not_of(' ') == std::string_view::npos;
}

std::string TextOf(std::int32_t value) {
  auto rest = static_cast<std::uint32_t>(value);
  if (value < 0) rest = 0U - rest;
  std::string text;
  do {
    text.insert(text.begin(), static_cast<char>('0' + rest % 10));
    rest /= 10;
  } while (rest != 0);
  if (value < 0) text.insert(text.begin(), '-');
  return text;
}

std::string ShortestText(double value) {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-Infinity" : "Infinity";
  const Decimal decimal = ToDecimal(value);
  const bool is_fixed =
      decimal.exponent <= Decimal::kDigits && decimal.count - decimal.exponent <= Decimal::kDigits;
  const std::string digits = is_fixed ? FixedText(decimal) : ScientificText(decimal);
  return decimal.is_negative ? "-" + digits : digits;
}

std::string FormatTwoDecimals(double value) {
  if (!std::isfinite(value)) return ShortestText(value);
  constexpr int kDecimals = 2;
  const Decimal decimal = ToDecimal(value);
  std::string digits = RoundedDigits(decimal, kDecimals);
  const bool shows_sign = decimal.is_negative && !IsZero(digits);
  digits.insert(digits.size() - kDecimals, 1, '.');
  return shows_sign ? "-" + digits : digits;
}

std::string FormatThousands(double value) {
  if (!std::isfinite(value)) return ShortestText(value);
  const Decimal decimal = ToDecimal(value);
  std::string digits = RoundedDigits(decimal, 0);
  if (IsZero(digits)) return {};
  for (std::size_t from_end = 3; from_end < digits.size(); from_end += 4) {
    digits.insert(digits.size() - from_end, 1, ',');
  }
  return decimal.is_negative ? "-" + digits : digits;
}

bool ParseBoolean(std::string_view text) {
  const std::string_view word = Trim(text);
  if (EqualsIgnoringCase(word, "True")) return true;
  return IsNumber(word) && ParseLeadingNumber(word) != 0;
}

}  // namespace qdix::base
