// Implements `Session` on Windows.
#pragma once

#include "os/session.h"

namespace qdix::os::win32 {

class Win32Session final : public Session {
 public:
  bool ExitWindowsEx(std::uint32_t flags, std::uint32_t reserved) override;
};

}  // namespace qdix::os::win32
