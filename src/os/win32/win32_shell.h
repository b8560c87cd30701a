// Implements `Shell` on Windows. Only forwards.
#pragma once

#include "os/shell.h"

namespace qdix::os::win32 {

class Win32Shell final : public Shell {
 public:
  bool Shell_NotifyIconA(std::uint32_t request, const NotifyIconData& data) override;
  bool ShellExecuteA(const char* verb, const std::string& path, int show) override;
};

}  // namespace qdix::os::win32
