#include "os/win32/win32_screen.h"

#include <windows.h>

#include <algorithm>

namespace qdix::os::win32 {

ScreenSize Win32Screen::WorkArea() {
  RECT area{};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  return {.width = std::max(static_cast<int>(area.right - area.left), 1),
          .height = std::max(static_cast<int>(area.bottom - area.top), 1)};
}

}  // namespace qdix::os::win32
