// Top-level windows of any program: finds them, walks their z-order and brings them to the front.
#pragma once

#include <cstdint>

namespace qdix::os {

/// A window handle; 0 means no window.
using WindowHandle = std::uintptr_t;

/// Relation for GetWindow: the window directly in front of another in the z-order.
inline constexpr std::uint32_t kGwHwndPrev = 3;

/// Shows a window in its present state and place without giving it the keyboard focus.
inline constexpr int kSwShowNa = 8;

/// Asks a window to close.
inline constexpr std::uint32_t kWmClose = 0x0010U;

class Windows {
 public:
  /// Returns the first top-level window with this class and title, ignoring case. A null pointer matches any.
  /// 0 if there is none.
  [[nodiscard]] virtual WindowHandle FindWindowA(const char* window_class, const char* title) = 0;

  /// Returns the next top-level window with this title, ignoring case, behind `after` in the z-order. If
  /// `after` is 0, starts at the front. 0 if there is none.
  [[nodiscard]] virtual WindowHandle FindWindowExA(WindowHandle after, const char* title) = 0;

  /// Returns the window with this relation to `window`, or 0.
  [[nodiscard]] virtual WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) = 0;

  /// Returns the thread that a window belongs to, or 0 if there is no such window.
  [[nodiscard]] virtual std::uint32_t GetWindowThreadProcessId(WindowHandle window) = 0;

  /// Restores a minimised window to its previous size and place, and shows it if it is hidden. Does nothing
  /// to other windows; the return value then depends on the system. False if there is no such window.
  virtual bool OpenIcon(WindowHandle window) = 0;

  /// Shows a window. True if it was already visible.
  virtual bool ShowWindow(WindowHandle window, int way) = 0;

  /// Brings a window to the front and gives it the keyboard focus. False if the system refuses.
  virtual bool SetForegroundWindow(WindowHandle window) = 0;

  /// Posts a message without parameters to a window and does not wait for it. False if there is no such
  /// window.
  virtual bool PostMessageA(WindowHandle window, std::uint32_t message) = 0;

 protected:
  ~Windows() = default;
};

}  // namespace qdix::os
