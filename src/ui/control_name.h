// The name that a screen gives a control, a timer or a menu entry.
#pragma once

#include <string_view>

namespace qdix::ui {

#ifdef QDIX_WITHOUT_NAMES

/// The shipped programs do without names: they know their controls as objects, and Windows knows them by
/// number.
class ControlName {
 public:
  constexpr ControlName(const char* /*text*/) {}
  [[nodiscard]] constexpr std::string_view Text() const { return {}; }
};

#else

/// Tests find controls by name. The text must be a literal, because only its address is kept.
class ControlName {
 public:
  constexpr ControlName(const char* text) : text_(text) {}
  [[nodiscard]] constexpr std::string_view Text() const { return text_; }

 private:
  const char* text_;
};

#endif

}  // namespace qdix::ui
