#include "os/win32/win32_event_pump.h"

namespace qdix::os::win32 {

void Win32EventPump::PumpEvents() {
  MSG message;
  for (int count = 0; count < kMessagesPerPump && !stopped_; ++count) {
    if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) == 0) return;
    if (message.message == WM_QUIT) {
      // Meant for the loop that waits; it finds it again when the operation has unwound.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Handle(message);
  }
}

bool Win32EventPump::WaitAndHandle() {
  MSG message;
  if (stopped_ || GetMessageA(&message, nullptr, 0, 0) <= 0) return false;
  Handle(message);
  return !stopped_;
}

void Win32EventPump::Handle(MSG& message) {
  // Dispatched without a window, a timer message would call whatever address it carries.
  if (message.hwnd == nullptr) return;
  if (dialog_window_ != nullptr && IsDialogMessageA(dialog_window_, &message) != 0) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

}  // namespace qdix::os::win32
