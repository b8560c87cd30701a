// A value or the run-time error that kept it from being made. There are no exceptions in the program.
#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "base/runtime_error.h"

namespace qdix::base {

/// Either a value or an error. Look before taking: `Value()` of a failed result is a programmer's mistake.
template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}  // NOLINT(google-explicit-constructor): `return value;`
  Result(RuntimeError error) : error_(error) {}  // NOLINT(google-explicit-constructor): `return kOverflow;`

  [[nodiscard]] bool Ok() const { return value_.has_value(); }
  [[nodiscard]] const RuntimeError& Error() const { return error_; }
  [[nodiscard]] const T& Value() const { return *value_; }
  [[nodiscard]] T ValueOr(T fallback) const { return value_.has_value() ? *value_ : std::move(fallback); }

 private:
  std::optional<T> value_;
  RuntimeError error_;
};

/// Success, or the error of an operation that makes no value.
template <>
class [[nodiscard]] Result<void> {
 public:
  constexpr Result() = default;
  constexpr Result(RuntimeError error) : error_(error) {}  // NOLINT(google-explicit-constructor)

  [[nodiscard]] constexpr bool Ok() const { return error_.number == 0; }
  [[nodiscard]] constexpr const RuntimeError& Error() const { return error_; }

 private:
  RuntimeError error_{};
};

using Status = Result<void>;
inline constexpr Status kDone{};

/// For operations whose failure is passed over in silence on purpose: says so where it happens.
template <class T>
constexpr void Ignore(const Result<T>& /*result*/) {}

}  // namespace qdix::base
