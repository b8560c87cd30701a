// Vertical scroll bar and slider: a whole number within a range.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

/// The minimum is the value at the top. A minimum above the maximum inverts the bar: up then increases the
/// value.
struct ScrollRange {
  std::int32_t minimum = 0;
  std::int32_t maximum = 32767;
  std::int32_t small_change = 1;
  std::int32_t large_change = 1;
};

class VerticalScrollBar final : public Control {
 public:
  VerticalScrollBar(Container& parent, const Design& design, const ScrollRange& range);

  [[nodiscard]] std::int32_t Minimum() const { return range_.minimum; }
  [[nodiscard]] std::int32_t Maximum() const { return range_.maximum; }
  [[nodiscard]] const ScrollRange& Range() const { return range_; }
  [[nodiscard]] std::int32_t Value() const { return value_; }
  [[nodiscard]] std::int32_t Lowest() const;
  [[nodiscard]] std::int32_t Highest() const;

  /// Fires OnChange if the value differs. A value outside the range returns error 380 and changes nothing.
  base::Status SetValue(std::int32_t value);
  /// Sets the value in the range nearest to `value`, rounded half to even. Never refused.
  void SetNearest(double value);
  /// If the value is outside the new range, moves it to the nearest end without OnChange.
  void SetRange(std::int32_t minimum, std::int32_t maximum);

  /// The user moves the thumb to a value (clamped), or scrolls by steps or pages: positive to the bottom,
  /// negative to the top.
  void Drag(std::int32_t value);
  void Step(int steps);
  void Page(int pages);

  Handler OnChange;

 private:
  void Move(std::int64_t value);

  ScrollRange range_;
  std::int32_t value_;
};

struct SliderRange {
  std::int32_t minimum = 0;
  std::int32_t maximum = 10;
  std::int32_t value = 0;
  std::int32_t small_change = 1;
  std::int32_t large_change = 5;
  /// The user's moves end on a multiple of this. Values set by code need not be multiples.
  std::int32_t step = 1;
};

/// Values set by code are clamped, including the first one, and fire nothing. A new range moves a value
/// outside it to the nearest end. Only the user's moves fire OnMove. If the minimum is above the maximum, the
/// minimum is the only value.
class Slider final : public Control {
 public:
  Slider(Container& parent, const Design& design, const SliderRange& range);

  [[nodiscard]] std::int32_t Minimum() const { return range_.minimum; }
  [[nodiscard]] std::int32_t Maximum() const { return range_.maximum; }
  [[nodiscard]] const SliderRange& Range() const { return range_; }
  [[nodiscard]] std::int32_t Value() const { return range_.value; }

  void SetValue(std::int32_t value);
  /// Sets the value in the range nearest to `value`, rounded half to even.
  void SetNearest(double value);
  void SetMinimum(std::int32_t minimum);
  void SetMaximum(std::int32_t maximum);

  /// The user moves the thumb. Rounds to the nearest step and fires OnMove with the new value if it differs.
  void Drag(std::int32_t value);

  base::Callback<base::Status(std::int32_t)> OnMove;

 private:
  void SetRange(std::int32_t minimum, std::int32_t maximum);
  [[nodiscard]] std::int32_t Nearest(std::int32_t value) const;

  SliderRange range_;
};

}  // namespace qdix::ui
