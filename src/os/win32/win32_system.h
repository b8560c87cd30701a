// The real system. Owns the implementation of every interface in `System`.
#pragma once

#include <windows.h>

#include "os/system.h"
#include "os/win32/interactive_machine.h"
#include "os/win32/win32_clock.h"
#include "os/win32/win32_drives.h"
#include "os/win32/win32_files.h"
#include "os/win32/win32_memory.h"
#include "os/win32/win32_processes.h"
#include "os/win32/win32_processor.h"
#include "os/win32/win32_profile_files.h"
#include "os/win32/win32_registry.h"
#include "os/win32/win32_session.h"
#include "os/win32/win32_shell.h"
#include "os/win32/win32_shell_files.h"
#include "os/win32/win32_windows.h"

namespace qdix::os::win32 {

class Win32System : public InteractiveMachine {
 public:
  Win32System();
  Win32System(const Win32System&) = delete;
  Win32System& operator=(const Win32System&) = delete;
  ~Win32System();

  [[nodiscard]] const System& GetSystem() const { return system_; }
  operator const System&() const { return system_; }

  /// Also sets the owner of what the shell shows.
  void SetMainWindow(HWND window);

 private:
  Win32Memory memory_;
  Win32Registry registry_;
  Win32Windows windows_;
  Win32Clock clock_;
  Win32Processes processes_;
  Win32Shell shell_;
  Win32ShellFiles shell_files_;
  Win32Processor processor_;
  Win32Files files_;
  Win32ProfileFiles profile_files_;
  Win32Drives drives_;
  Win32Session session_;
  System system_;
};

}  // namespace qdix::os::win32
