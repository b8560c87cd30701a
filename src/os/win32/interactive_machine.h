// What every program with a window uses of the real machine. The members have the names that they have in
// `os::System`.
#pragma once

#include <windows.h>

#include "os/win32/win32_dialogs.h"
#include "os/win32/win32_event_pump.h"

namespace qdix::os::win32 {

struct InteractiveMachine {
  /// Sets the window whose messages follow the keyboard rules of dialogs and that owns message boxes; null
  /// for none.
  void SetMainWindow(HWND window) {
    event_pump.SetDialogWindow(window);
    dialogs.SetOwner(window);
  }

  /// Ends the program: pumps return at once, and open boxes close without an answer.
  void Stop() {
    event_pump.Stop();
    dialogs.Stop();
  }

  Win32EventPump event_pump;
  Win32Dialogs dialogs;
};

}  // namespace qdix::os::win32
