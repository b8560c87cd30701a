// The user: the real pointer and the real keyboard. Both act on the window in front.
#pragma once

// clang-format off
#include <windows.h>
// clang-format on

#include <string>

namespace qdix::e2e {

/// An action on the pointer's buttons.
enum class Press {
  kLeft,
  kLeftTwice,
  kRight
};

/// Brings a window to the front; returns false if that fails.
[[nodiscard]] bool BringForward(HWND top_level);

/// Moves the pointer to a position in pixels from the window's upper left corner. Returns false if a window
/// of another program, or none, is at that position.
[[nodiscard]] bool PointAt(HWND window, POINT inside);
/// Does the same and presses a button there. Does not bring a window to the front.
[[nodiscard]] bool PressAt(HWND window, POINT inside, Press press);

/// Brings a control's window to the front, moves the pointer to the middle of the control and presses its
/// left button; returns false if PressAt() fails.
[[nodiscard]] bool Click(HWND control);
/// Does the same at a position in pixels from the control's upper left corner.
[[nodiscard]] bool ClickAt(HWND control, POINT inside);

/// Brings a control's window to the front, presses the left button at a position in the control, moves the
/// pointer `pixels` to the right (to the left if negative), and releases the button.
[[nodiscard]] bool Drag(HWND control, POINT from, int pixels);

/// Presses and releases a key.
void PressKey(int key);
/// Presses a key while another is held down.
void PressKeyWith(int held_key, int key);
/// Types a text of plain letters and digits.
void TypeText(const std::string& text);

}  // namespace qdix::e2e
