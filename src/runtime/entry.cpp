// Where the system enters a shipped program.
#include "runtime/entry.h"

#include <windows.h>

#include "runtime/float_control.h"

namespace {

int ShowCommand() {
  STARTUPINFOA info = {};
  info.cb = sizeof info;
  GetStartupInfoA(&info);
  return (info.dwFlags & STARTF_USESHOWWINDOW) != 0 ? info.wShowWindow : SW_SHOWDEFAULT;
}

}  // namespace

/// The linker is told this name; without it the entry would be wherever the code begins. The stack is aligned
/// to 4 bytes only, which is all that 387 code needs.
extern "C" [[noreturn]] void start() asm("_start");
extern "C" [[noreturn]] void start() {
  qdix::runtime::SetFloatingPointControl();
  ExitProcess(static_cast<UINT>(QdixMain(GetModuleHandleA(nullptr), ShowCommand())));
}
