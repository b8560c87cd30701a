// Run-time errors: a number that users know from message boxes, and its description. Owns the table of
// descriptions. Errors are raised and reported elsewhere.
#pragma once

#include <string>
#include <string_view>

namespace qdix::base {

/// A run-time error. Holds numbers only, so it is cheap to copy and compare.
struct RuntimeError {
  int number = 0;
  /// The control array element that error 340 names; 0 for every other error.
  int element = 0;

  /// Returns the English description, for example "Overflow" for 6, or "Application-defined error" for an
  /// unknown number.
  [[nodiscard]] std::string Description() const;

  friend bool operator==(const RuntimeError&, const RuntimeError&) = default;
};

inline constexpr RuntimeError kInvalidProcedureCall{5};
inline constexpr RuntimeError kOverflow{6};
inline constexpr RuntimeError kOutOfMemory{7};
inline constexpr RuntimeError kSubscriptOutOfRange{9};
inline constexpr RuntimeError kDivisionByZero{11};
inline constexpr RuntimeError kFileNotFound{53};
inline constexpr RuntimeError kDeviceUnavailable{68};
inline constexpr RuntimeError kPermissionDenied{70};
inline constexpr RuntimeError kPathNotFound{76};
inline constexpr RuntimeError kInvalidPropertyValue{380};
inline constexpr RuntimeError kSetNotPermitted{387};

/// The element of a control array that does not exist.
constexpr RuntimeError NoSuchElement(int element) { return {340, element}; }

/// Returns the message box text of an error that nothing traps: "Run-time error 'N':", an empty line, the
/// description.
[[nodiscard]] std::string UntrappedErrorText(const RuntimeError& error);

}  // namespace qdix::base
