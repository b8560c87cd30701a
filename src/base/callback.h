// A callback in two words: a function and what it works on. Binding allocates nothing and cannot fail.
#pragma once

namespace qdix::base {

template <class Signature>
class Callback;

/// An unbound callback tests false and must not be called. The bound object must outlive the callback.
template <class R, class... Args>
class Callback<R(Args...)> {
 public:
  constexpr Callback() = default;

  /// Returns a callback that calls a member function: `Callback<Status()>::To<&Form1::Command1_Click>(form)`.
  template <auto Method, class Object>
  [[nodiscard]] static constexpr Callback To(Object& object) {
    return Callback(&object, [](void* bound, Args... args) -> R {
      return (static_cast<Object*>(bound)->*Method)(args...);
    });
  }

  /// Returns a callback that calls `callable`, for example a lambda in a variable.
  template <class Callable>
  [[nodiscard]] static constexpr Callback Of(Callable& callable) {
    return Callback(&callable,
                    [](void* bound, Args... args) -> R { return (*static_cast<Callable*>(bound))(args...); });
  }

  constexpr explicit operator bool() const { return function_ != nullptr; }
  R operator()(Args... args) const { return function_(object_, args...); }

 private:
  using Function = R (*)(void*, Args...);
  constexpr Callback(void* object, Function function) : object_(object), function_(function) {}

  void* object_ = nullptr;
  Function function_ = nullptr;
};

}  // namespace qdix::base
