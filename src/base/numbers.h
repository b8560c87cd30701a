// Reads, rounds and formats numbers as the classic run time does. The results are the same on every machine:
// no locale, no C library. Megabytes are counted in three different units on purpose; the unit constants are
// here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/result.h"

namespace qdix::base {

/// Returns the number at the start of a text. Skips leading spaces, then reads a sign, digits, one "." and an
/// exponent with E or D in either case. Stops at the first character that cannot continue a number. Returns 0
/// if there is no number. A number that is too large saturates at the largest double. "64 MB" gives 64,
/// "1,234" gives 1.
[[nodiscard]] double ParseLeadingNumber(std::string_view text);

/// True if the whole text is one number by the rules of ParseLeadingNumber. It must have at least one digit;
/// spaces are allowed around it.
[[nodiscard]] bool IsNumber(std::string_view text);

/// Returns the shortest text of a double with at most 15 significant digits: "0.5", "-3", "1E+15". Uses fixed
/// notation while that takes at most 15 decimals and at most 15 integer digits, otherwise d.ddE+nn. NaN and
/// the infinities give "NaN", "Infinity" and "-Infinity".
[[nodiscard]] std::string ShortestText(double value);

/// Returns a whole number in decimal.
[[nodiscard]] std::string TextOf(std::int32_t value);

/// Formats a number by the pattern "0.00": two decimals, rounded half away from zero on the decimal
/// (15-digit) value, "." in every locale.
[[nodiscard]] std::string FormatTwoDecimals(double value);

/// Formats a number by the pattern "#,###": rounded half away from zero to a whole number, "," between
/// thousands. 0 gives an empty text.
[[nodiscard]] std::string FormatThousands(double value);

/// Returns the nearest whole number, ties to even, as a double.
[[nodiscard]] double RoundHalfEven(double value);

/// Returns the largest whole number that is not above the value.
[[nodiscard]] double WholePart(double value);

/// Returns the value without its fraction, that is, rounded toward zero.
[[nodiscard]] double Truncate(double value);

/// Rounds half to even and narrows. Returns error 6 if the value is out of range or NaN.
[[nodiscard]] Result<std::uint8_t> ToByte(double value);
[[nodiscard]] Result<std::int16_t> ToInt16(double value);
[[nodiscard]] Result<std::int32_t> ToInt32(double value);

/// Returns the nearest value inside [low, high], rounded half to even. Clamps as a double before it narrows,
/// so any double is safe. NaN gives `low`.
[[nodiscard]] std::int32_t ClampToInt32(double value, std::int32_t low, std::int32_t high);

/// Returns a / b. The error is 11 if b is 0 and a is not, and 6 for 0 / 0.
[[nodiscard]] Result<double> Divide(double a, double b);

/// Returns a - b in signed 32-bit arithmetic, or error 6 on overflow.
[[nodiscard]] Result<std::int32_t> SubtractInt32(std::int32_t a, std::int32_t b);

/// Returns a + b in signed 32-bit or 16-bit arithmetic, or error 6 on overflow.
[[nodiscard]] Result<std::int32_t> AddInt32(std::int32_t a, std::int32_t b);
[[nodiscard]] Result<std::int16_t> AddInt16(std::int16_t a, std::int16_t b);

/// Reads a stored text as a Boolean: "True" or "False" in any case, or a number, which is true unless it is
/// 0. Any other text is false.
[[nodiscard]] bool ParseBoolean(std::string_view text);

/// Converts bytes to megabytes of 1,024,000 bytes, the unit for memory and free disk space. Divides by 1.024,
/// then by 1,000,000.
[[nodiscard]] double BytesToMemoryMb(double bytes);

/// Converts bytes of swap file to BytesToMemoryMb divided by another 1,024. Times 1,000, the result counts
/// units of 1,048,576 bytes.
[[nodiscard]] double BytesToSwapFileThousandMb(double bytes);

/// Bytes that a release allocates for one megabyte: 260,000 four-byte words.
inline constexpr double kReleaseMbBytes = 260000.0 * 4.0;

}  // namespace qdix::base
