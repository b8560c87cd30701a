// Sliders and scroll bars of another process: where their thumbs are, as the system draws them.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

namespace qdix::e2e {

/// The native position of a slider, which is its value.
[[nodiscard]] int SliderPosition(HWND slider);
[[nodiscard]] int SliderMinimum(HWND slider);
[[nodiscard]] int SliderMaximum(HWND slider);
/// How many marks stand below its way, the two ends included.
[[nodiscard]] int SliderMarks(HWND slider);

/// Seizes a slider's thumb with the pointer and pulls it so many pixels, to the right where positive. False
/// where the pointer does not get there.
[[nodiscard]] bool PullThumb(HWND slider, int pixels);

/// The distance of a scroll bar's thumb from the bar's upper end.
[[nodiscard]] int ScrollPosition(HWND bar);
/// True where the screen shows both arrows in the colour of those that can be pressed.
[[nodiscard]] bool ArrowsLookEnabled(HWND bar);
/// Clicks the arrow at the bar's upper or lower end.
[[nodiscard]] bool ClickUpArrow(HWND bar);
[[nodiscard]] bool ClickDownArrow(HWND bar);

}  // namespace qdix::e2e
