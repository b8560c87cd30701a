// Windows of any program: finding them, walking their order, bringing them forward.
#pragma once

#include <cstdint>

namespace qdix::os {

/// A window of the system; 0 is no window.
using WindowHandle = std::uintptr_t;

/// Relations of GetWindow: the window directly before another in the window order (nearer to the user).
inline constexpr std::uint32_t kGwHwndPrev = 3;

/// Shows a window in its present state and place, without the keyboard.
inline constexpr int kSwShowNa = 8;

/// Asks a window to close.
inline constexpr std::uint32_t kWmClose = 0x0010U;

class Windows {
 public:
  virtual ~Windows() = default;

  /// First top-level window of this class and title (case-insensitive); a null pointer matches any. 0 when
  /// there is none.
  [[nodiscard]] virtual WindowHandle FindWindowA(const char* window_class, const char* title) = 0;

  /// The next top-level window with this title (case-insensitive) behind `after` in the window order; with 0
  /// the first of all. 0 when there is none.
  [[nodiscard]] virtual WindowHandle FindWindowExA(WindowHandle after, const char* title) = 0;

  /// The window that stands in this relation to `window`, or 0.
  [[nodiscard]] virtual WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) = 0;

  /// The thread that a window belongs to; 0 when there is no such window.
  [[nodiscard]] virtual std::uint32_t GetWindowThreadProcessId(WindowHandle window) = 0;

  /// Restores a minimised window to its former size and place, and shows it where it is hidden; no effect on
  /// others, for which the answer depends on the system. False when there is no such window.
  virtual bool OpenIcon(WindowHandle window) = 0;

  /// Shows a window. True where it was visible before.
  virtual bool ShowWindow(WindowHandle window, int way) = 0;

  /// Brings a window to the front and gives it the keyboard. False when the system refuses.
  virtual bool SetForegroundWindow(WindowHandle window) = 0;

  /// Leaves a message without parameters for a window and does not wait for what it does. False when there is
  /// no such window.
  virtual bool PostMessageA(WindowHandle window, std::uint32_t message) = 0;
};

}  // namespace qdix::os
