#include "os/win32/win32_session.h"

#include <windows.h>

namespace qdix::os::win32 {

static_assert(kEwxReboot == EWX_REBOOT);

bool Win32Session::ExitWindowsEx(std::uint32_t flags, std::uint32_t reserved) {
  return ::ExitWindowsEx(flags, reserved) != 0;
}

}  // namespace qdix::os::win32
