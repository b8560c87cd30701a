// Implements `Screen` on Windows.
#pragma once

#include "os/screen.h"

namespace qdix::os::win32 {

class Win32Screen final : public Screen {
 public:
  [[nodiscard]] ScreenSize WorkArea() override;
};

}  // namespace qdix::os::win32
