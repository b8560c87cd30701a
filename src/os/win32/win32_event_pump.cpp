#include "os/win32/win32_event_pump.h"

namespace qdix::os::win32 {

namespace {

/// Every kind of message that Windows 95 knows. QS_ALLINPUT of the headers has a later one.
constexpr DWORD kAllInput = 0xFF;

}  // namespace

void Win32EventPump::PumpEvents() { static_cast<void>(HandlePending()); }

Win32EventPump::Queue Win32EventPump::HandlePending() {
  MSG message;
  for (int count = 0; count < kMessagesPerPump && !stopped_; ++count) {
    if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) == 0) return Queue::kEmpty;
    if (message.message == WM_QUIT) {
      // The main loop needs this message and finds it again after the operation has returned.
      PostQuitMessage(static_cast<int>(message.wParam));
      return Queue::kEnds;
    }
    Handle(message);
  }
  return stopped_ ? Queue::kEnds : Queue::kHasMore;
}

void Win32EventPump::WaitMs(std::uint32_t ms) {
  const DWORD begin = GetTickCount();
  for (;;) {
    const Queue queue = HandlePending();
    const DWORD passed_ms = GetTickCount() - begin;
    if (queue == Queue::kEnds || passed_ms >= ms) return;
    // The wait ends only for new messages, so the queue must be empty first.
    if (queue == Queue::kEmpty) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, ms - passed_ms, kAllInput);
    }
  }
}

bool Win32EventPump::WaitAndHandle() {
  MSG message;
  if (stopped_ || GetMessageA(&message, nullptr, 0, 0) <= 0) return false;
  Handle(message);
  return !stopped_;
}

void Win32EventPump::Handle(MSG& message) {
  // Of the messages without a window, only those of a thread timer have an effect: dispatching one calls
  // whatever address it carries, and Windows 95 does not check that address. Messages of system libraries are
  // dropped too: their dialogs and waits run message loops of their own, and a library such as ole32 may
  // already be unloaded when the message arrives.
  if (message.hwnd == nullptr) return;
  if (dialog_window_ != nullptr && IsDialogMessageA(dialog_window_, &message) != 0) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

}  // namespace qdix::os::win32
