// Vertical scroll bar and slider: a whole number inside a range.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

/// Value at the top is the minimum. A minimum above the maximum inverts the bar, so that up increases the
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

  /// Fires OnChange when the value differs. Outside the range is error 380, value unchanged.
  base::Status SetValue(std::int32_t value);
  /// The nearest value inside the range to any double, rounded half to even; cannot be refused.
  void SetNearest(double value);
  /// A narrower range moves the value to its nearest end without OnChange.
  void SetRange(std::int32_t minimum, std::int32_t maximum);

  /// The user's hand: to a position on the bar (clamped), or by steps toward the bottom (positive) or the top
  /// (negative).
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
  /// The user's moves end on a multiple of this; values from code keep what they are.
  std::int32_t step = 1;
};

/// Values from code are clamped, the first one too, and fire nothing; a new range moves the value to its
/// nearest end. OnMove is the user's move only. A minimum above the maximum leaves the minimum as the only
/// value.
class Slider final : public Control {
 public:
  Slider(Container& parent, const Design& design, const SliderRange& range);

  [[nodiscard]] std::int32_t Minimum() const { return range_.minimum; }
  [[nodiscard]] std::int32_t Maximum() const { return range_.maximum; }
  [[nodiscard]] const SliderRange& Range() const { return range_; }
  [[nodiscard]] std::int32_t Value() const { return range_.value; }

  void SetValue(std::int32_t value);
  /// The nearest value inside the range to any double, rounded half to even.
  void SetNearest(double value);
  void SetMinimum(std::int32_t minimum);
  void SetMaximum(std::int32_t maximum);

  /// The user moves the thumb, to the nearest step; fires OnMove with the new value when it differs.
  void Drag(std::int32_t value);

  base::Callback<base::Status(std::int32_t)> OnMove;

 private:
  void SetRange(std::int32_t minimum, std::int32_t maximum);
  [[nodiscard]] std::int32_t Nearest(std::int32_t value) const;

  SliderRange range_;
};

}  // namespace qdix::ui
