// Sliders and scroll bars of another process: where the system draws their thumbs.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

/// Returns the native position of a slider, which is its value.
[[nodiscard]] int SliderPosition(HWND slider);
[[nodiscard]] int SliderMinimum(HWND slider);
[[nodiscard]] int SliderMaximum(HWND slider);
/// Returns the number of tick marks below the slider, including both ends.
[[nodiscard]] int SliderMarks(HWND slider);

/// Drags a slider's thumb with the pointer by `pixels`, to the right if positive. Returns false if the
/// pointer does not get there.
[[nodiscard]] bool PullThumb(HWND slider, int pixels);

/// Returns the distance of a scroll bar's thumb from the bar's upper end.
[[nodiscard]] int ScrollPosition(HWND bar);
/// True if the screen shows both arrows in the enabled colour.
[[nodiscard]] bool ArrowsLookEnabled(HWND bar);
/// Clicks the arrow at the bar's upper end or at its lower end.
[[nodiscard]] bool ClickUpArrow(HWND bar);
[[nodiscard]] bool ClickDownArrow(HWND bar);

}  // namespace qdix::e2e
