// The program's message queue. The pump inside operations and the main loop between them handle messages in
// the same way.
#pragma once

#include <windows.h>

#include "os/event_pump.h"

namespace qdix::os::win32 {

class Win32EventPump final : public EventPump {
 public:
  /// Maximum number of messages per pump. A flood of messages (a dragged window, another program out of
  /// control) must not stop an operation; the rest waits for the next pump.
  static constexpr int kMessagesPerPump = 64;

  /// Applies the keyboard rules of dialogs to messages of this window and its child windows. Null for none.
  void SetDialogWindow(HWND window) { dialog_window_ = window; }

  void PumpEvents() override;
  void WaitMs(std::uint32_t ms) override;

  /// Waits for one message and handles it. False if the program has ended or received WM_QUIT.
  [[nodiscard]] bool WaitAndHandle();

  /// Stops all message handling.
  void Stop() { stopped_ = true; }

 private:
  enum class Queue {
    kEmpty,
    kHasMore,
    kEnds
  };
  Queue HandlePending();
  void Handle(MSG& message);

  HWND dialog_window_ = nullptr;
  bool stopped_ = false;
};

}  // namespace qdix::os::win32
