// The message queue of the program: the pump inside operations and the loop between them handle messages in
// the same way.
#pragma once

#include <windows.h>

#include "os/event_pump.h"

namespace qdix::os::win32 {

class Win32EventPump final : public EventPump {
 public:
  /// Most messages that one pump handles. A flood (a dragged window, a program gone wild) must not keep an
  /// operation from going on; what is left waits for the next pump.
  static constexpr int kMessagesPerPump = 64;

  /// Messages of the window and of what stands in it go through the keyboard rules of dialogs first. Null for
  /// none.
  void SetDialogWindow(HWND window) { dialog_window_ = window; }

  void PumpEvents() override;
  void WaitMs(std::uint32_t ms) override;

  /// Waits for one message and handles it; false when the program has ended or is told to quit.
  [[nodiscard]] bool WaitAndHandle();

  /// From now on nothing is handled.
  void Stop() { stopped_ = true; }

 private:
  enum class Queue {
    kEmpty,
    kHasMore,
    kEnds
  };
  Queue HandleSome();
  void Handle(MSG& message);

  HWND dialog_window_ = nullptr;
  bool stopped_ = false;
};

}  // namespace qdix::os::win32
