// Windows of any program: finding them, walking their order, bringing them forward.
#pragma once

#include <cstdint>

namespace qdix::os {

/// A window of the system; 0 is no window.
using WindowHandle = std::uintptr_t;

/// Relations of GetWindow: the window directly before another in the window order (nearer to the user).
inline constexpr std::uint32_t kGwHwndPrev = 3;

/// Asks a window to close.
inline constexpr std::uint32_t kWmClose = 0x0010U;

class Windows {
 public:
  virtual ~Windows() = default;

  /// First top-level window of this class and title (case-insensitive); a null pointer matches any. 0 when
  /// there is none.
  [[nodiscard]] virtual WindowHandle FindWindowA(const char* window_class, const char* title) = 0;

  /// The window that stands in this relation to `window`, or 0.
  [[nodiscard]] virtual WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) = 0;

  /// The thread that a window belongs to; 0 when there is no such window.
  [[nodiscard]] virtual std::uint32_t GetWindowThreadProcessId(WindowHandle window) = 0;

  /// Restores a minimised window to its former size and place; no effect on others. False when there is no
  /// such window.
  virtual bool OpenIcon(WindowHandle window) = 0;

  /// Brings a window to the front and gives it the keyboard. False when the system refuses.
  virtual bool SetForegroundWindow(WindowHandle window) = 0;

  /// Leaves a message without parameters for a window and does not wait for what it does. False when there is
  /// no such window.
  virtual bool PostMessageA(WindowHandle window, std::uint32_t message) = 0;
};

}  // namespace qdix::os
