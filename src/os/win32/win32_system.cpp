#include "os/win32/win32_system.h"

namespace qdix::os::win32 {

Win32System::Win32System()
    : system_{memory_, registry_,    event_pump, windows_, dialogs,        clock_,  processes_,
              shell_,  shell_files_, processor_, files_,   profile_files_, drives_, session_} {}

Win32System::~Win32System() = default;

void Win32System::SetMainWindow(HWND window) {
  InteractiveMachine::SetMainWindow(window);
  shell_files_.SetOwner(window);
}

}  // namespace qdix::os::win32
