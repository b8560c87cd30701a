// The point where Windows enters a shipped program.
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

/// The linker gets this name as the entry point; without it, execution would start where the code begins. The
/// stack is aligned only to 4 bytes, which is enough for 387 code.
extern "C" [[noreturn]] void start() asm("_start");
extern "C" [[noreturn]] void start() {
  qdix::runtime::SetFloatingPointControl();
  ExitProcess(static_cast<UINT>(QdixMain(GetModuleHandleA(nullptr), ShowCommand())));
}
