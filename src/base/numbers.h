// Numbers as the classic run time reads, rounds and shows them. The same answers on every machine: no locale,
// no C library. Megabytes are counted in three different units on purpose; the unit constants live here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/result.h"

namespace qdix::base {

/// Leading-number parse: leading blanks skipped; sign, digits, one ".", exponent with E or D (either case);
/// stops at the first character that cannot continue a number. Nothing read gives 0, too large a number
/// saturates at the largest double. "64 MB" is 64, "1,234" is 1.
[[nodiscard]] double ParseLeadingNumber(std::string_view text);

/// True where the whole text is one number by the rules of ParseLeadingNumber (blanks around it allowed, at
/// least one digit).
[[nodiscard]] bool IsNumber(std::string_view text);

/// Shortest text of a double with at most 15 significant digits: "0.5", "-3", "1E+15"; fixed notation while
/// it needs at most 15 decimals and at most 15 integer digits, else d.ddE+nn. Not a number and the infinities
/// read "NaN", "Infinity", "-Infinity".
[[nodiscard]] std::string ShortestText(double value);

/// Decimal text of a whole number.
[[nodiscard]] std::string TextOf(std::int32_t value);

/// Pattern "0.00": two decimals, rounded half away from zero on the decimal (15-digit) value, "." in every
/// locale.
[[nodiscard]] std::string FormatTwoDecimals(double value);

/// Pattern "#,###": whole number rounded half away from zero, "," between thousands, empty text for 0.
[[nodiscard]] std::string FormatThousands(double value);

/// Nearest whole number, ties to even; stays a double.
[[nodiscard]] double RoundHalfEven(double value);

/// Largest whole number not above the value.
[[nodiscard]] double WholePart(double value);

/// The value without its fraction (toward zero).
[[nodiscard]] double Truncate(double value);

/// Narrowing with rounding half to even; out of range, or not a number, is error 6.
[[nodiscard]] Result<std::uint8_t> ToByte(double value);
[[nodiscard]] Result<std::int16_t> ToInt16(double value);
[[nodiscard]] Result<std::int32_t> ToInt32(double value);

/// Nearest value inside [low, high], rounded half to even; clamps as a double before narrowing, so any double
/// is safe. Not a number gives `low`.
[[nodiscard]] std::int32_t ClampToInt32(double value, std::int32_t low, std::int32_t high);

/// a / b: error 11 for a non-zero a and b = 0, error 6 for 0 / 0.
[[nodiscard]] Result<double> Divide(double a, double b);

/// a - b in signed 32-bit arithmetic; error 6 on overflow.
[[nodiscard]] Result<std::int32_t> SubtractInt32(std::int32_t a, std::int32_t b);

/// a + b in signed arithmetic of 32 or 16 bits; error 6 on overflow.
[[nodiscard]] Result<std::int32_t> AddInt32(std::int32_t a, std::int32_t b);
[[nodiscard]] Result<std::int16_t> AddInt16(std::int16_t a, std::int16_t b);

/// A stored text that is read as true or false: "True"/"False" in any case, or a number (not 0 is true);
/// anything else is false.
[[nodiscard]] bool ParseBoolean(std::string_view text);

/// Megabytes of memory and of free disk space: 1,024,000 bytes. Divide by 1.024, then by 1,000,000.
[[nodiscard]] double BytesToMemoryMb(double bytes);

/// Swap file total: BytesToMemoryMb divided once more by 1,024, so that times 1,000 it counts units of
/// 1,048,576 bytes.
[[nodiscard]] double BytesToSwapFileThousandMb(double bytes);

/// Bytes of one megabyte that a release allocates: 260,000 four-byte words.
inline constexpr double kReleaseMbBytes = 260000.0 * 4.0;

}  // namespace qdix::base
