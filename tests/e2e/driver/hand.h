// The user's hand: the real pointer and the real keyboard. Both go to the window in front.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

/// What a finger does on the pointer's buttons.
enum class Press {
  kLeft,
  kLeftTwice,
  kRight
};

/// Brings a window to the front; false when it does not come.
[[nodiscard]] bool BringForward(HWND top_level);

/// Moves the pointer to a place in pixels from the window's upper left corner; false where another program's
/// window, or none, is at that place.
[[nodiscard]] bool PointAt(HWND window, POINT inside);
/// The same, with a press there. Brings no window to the front by itself.
[[nodiscard]] bool PressAt(HWND window, POINT inside, Press press);

/// Brings a control's window to the front, moves the pointer into the middle of the control and presses its
/// left button; false where PressAt fails.
[[nodiscard]] bool Click(HWND control);
/// The same at a place in pixels from the control's upper left corner.
[[nodiscard]] bool ClickAt(HWND control, POINT inside);

/// Brings a control's window to the front and presses the left button at a place in the control, moves the
/// pointer so many pixels to the right or, with a negative number, to the left, and lets go of the button.
[[nodiscard]] bool Drag(HWND control, POINT from, int pixels);

/// Presses and lets go of a key.
void PressKey(int key);
/// Presses a key while another is held down.
void PressKeyWith(int held_key, int key);
/// Types a text of plain letters and digits.
void TypeText(const std::string& text);

}  // namespace qdix::e2e
