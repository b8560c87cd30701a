#include "os/win32/win32_system.h"

namespace qdix::os::win32 {

Win32System::Win32System()
    : system_{memory_, registry_,    event_pump_, windows_, dialogs_,       clock_,  processes_,
              shell_,  shell_files_, processor_,  files_,   profile_files_, drives_, session_} {}

Win32System::~Win32System() = default;

void Win32System::SetMainWindow(HWND window) {
  event_pump_.SetDialogWindow(window);
  dialogs_.SetOwner(window);
  shell_files_.SetOwner(window);
}

void Win32System::Stop() {
  event_pump_.Stop();
  dialogs_.Stop();
}

}  // namespace qdix::os::win32
