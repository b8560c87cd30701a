#include "ui/ranges.h"

#include <algorithm>

#include "base/numbers.h"

namespace qdix::ui {

VerticalScrollBar::VerticalScrollBar(Container& parent, const Design& design, const ScrollRange& range)
    : Control(&parent, Kind::kVerticalScrollBar, design), range_(range), value_(Lowest()) {}

std::int32_t VerticalScrollBar::Lowest() const { return std::min(range_.minimum, range_.maximum); }
std::int32_t VerticalScrollBar::Highest() const { return std::max(range_.minimum, range_.maximum); }

base::Status VerticalScrollBar::SetValue(std::int32_t value) {
  if (value < Lowest() || value > Highest()) return base::kInvalidPropertyValue;
  if (value_ == value) return base::kDone;
  value_ = value;
  Notify(Change::kValue);
  Events().Run(OnChange);
  return base::kDone;
}

void VerticalScrollBar::SetNearest(double value) {
  base::Ignore(SetValue(base::ClampToInt32(value, Lowest(), Highest())));  // clamped to the range
}

void VerticalScrollBar::SetRange(std::int32_t minimum, std::int32_t maximum) {
  if (range_.minimum == minimum && range_.maximum == maximum) return;
  range_.minimum = minimum;
  range_.maximum = maximum;
  value_ = std::clamp(value_, Lowest(), Highest());
  Notify(Change::kRange);
}

void VerticalScrollBar::Move(std::int64_t value) {
  if (Reachable()) SetNearest(static_cast<double>(value));
}

void VerticalScrollBar::Drag(std::int32_t value) { Move(value); }

void VerticalScrollBar::Step(int steps) {
  const std::int64_t towards_bottom = range_.minimum > range_.maximum ? -1 : 1;
  Move(value_ + towards_bottom * steps * range_.small_change);
}

void VerticalScrollBar::Page(int pages) {
  const std::int64_t towards_bottom = range_.minimum > range_.maximum ? -1 : 1;
  Move(value_ + towards_bottom * pages * range_.large_change);
}

Slider::Slider(Container& parent, const Design& design, const SliderRange& range)
    : Control(&parent, Kind::kSlider, design), range_(range) {
  range_.value = Nearest(range.value);
}

/// If the minimum is above the maximum, the minimum is the only value.
std::int32_t Slider::Nearest(std::int32_t value) const {
  return std::max(std::min(value, range_.maximum), range_.minimum);
}

void Slider::SetValue(std::int32_t value) {
  const std::int32_t nearest = Nearest(value);
  if (range_.value == nearest) return;
  range_.value = nearest;
  Notify(Change::kValue);
}

void Slider::SetNearest(double value) { SetValue(base::ClampToInt32(value, range_.minimum, range_.maximum)); }

void Slider::SetMinimum(std::int32_t minimum) { SetRange(minimum, range_.maximum); }

void Slider::SetMaximum(std::int32_t maximum) { SetRange(range_.minimum, maximum); }

void Slider::SetRange(std::int32_t minimum, std::int32_t maximum) {
  if (range_.minimum == minimum && range_.maximum == maximum) return;
  range_.minimum = minimum;
  range_.maximum = maximum;
  range_.value = Nearest(range_.value);
  Notify(Change::kRange);
}

void Slider::Drag(std::int32_t value) {
  if (!Reachable()) return;
  const std::int32_t before = range_.value;
  SetNearest(base::RoundHalfEven(static_cast<double>(value) / range_.step) * range_.step);
  if (range_.value != before) Events().Run(OnMove, range_.value);
}

}  // namespace qdix::ui
