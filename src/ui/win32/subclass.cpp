#include "ui/win32/subclass.h"

#include "runtime/float_control.h"

namespace qdix::ui::win32 {

Subclass::Subclass(HWND window, MessageHandler& handler) : window_(window), handler_(handler) {
  if (window_ == nullptr) return;
  SetWindowLongA(window_, GWL_USERDATA, reinterpret_cast<LONG>(this));
  former_ = reinterpret_cast<WNDPROC>(
      SetWindowLongA(window_, GWL_WNDPROC, reinterpret_cast<LONG>(&Subclass::Procedure)));
}

void Subclass::Remove() {
  if (window_ == nullptr) return;
  SetWindowLongA(window_, GWL_WNDPROC, reinterpret_cast<LONG>(former_));
  SetWindowLongA(window_, GWL_USERDATA, 0);
  window_ = nullptr;
}

LRESULT Subclass::Default(UINT message, WPARAM wparam, LPARAM lparam) {
  return CallWindowProcA(former_, window_, message, wparam, lparam);
}

LRESULT CALLBACK Subclass::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const hook = reinterpret_cast<Subclass*>(GetWindowLongA(window, GWL_USERDATA));
  if (hook == nullptr) return DefWindowProcA(window, message, wparam, lparam);
  if (message == WM_NCDESTROY) {
    const WNDPROC former = hook->former_;
    hook->Remove();
    return CallWindowProcA(former, window, message, wparam, lparam);
  }
  // Timers also tick inside message loops of other code: the shell, a file dialog, a printer dialog. That
  // code may have changed the setting.
  runtime::SetFloatingPointControl();
  return hook->handler_.HandleMessage(message, wparam, lparam);
}

}  // namespace qdix::ui::win32
