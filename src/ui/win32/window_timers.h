// Runs the timers of a form as timers of its main window. A timer's number is its position in the form's
// list, from 1.
#pragma once

#include <windows.h>

#include <span>

#include "ui/timer.h"

namespace qdix::ui::win32 {

class WindowTimers final : private TimerPeer {
 public:
  /// The timers must outlive this object, and `main` must still exist when it is destroyed. If Windows has no
  /// timer left, a timer does not tick until it is started again.
  WindowTimers(HWND main, std::span<Timer* const> timers);
  WindowTimers(const WindowTimers&) = delete;
  WindowTimers& operator=(const WindowTimers&) = delete;
  ~WindowTimers();

  /// A WM_TIMER message with this number arrived.
  void Elapsed(UINT_PTR number) const;

 private:
  void TimerRestarted(Timer& timer) override;

  HWND main_;
  std::span<Timer* const> timers_;
};

}  // namespace qdix::ui::win32
