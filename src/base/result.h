// A value, or the run-time error that was raised in its place. The program uses no exceptions.
#pragma once

#include <optional>
#include <type_traits>
#include <utility>

#include "base/runtime_error.h"

namespace qdix::base {

/// Holds either a value or an error. Check `Ok()` first: calling `Value()` on a failed result is a bug.
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

/// Holds success, or the error of an operation that returns no value.
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

/// Marks the place where an operation's failure is ignored on purpose.
template <class T>
constexpr void Ignore(const Result<T>& /*result*/) {}

}  // namespace qdix::base
