// Implements `Clock` on Windows. Only forwards; the calendar arithmetic is shared code.
#pragma once

#include "os/clock.h"

namespace qdix::os::win32 {

class Win32Clock final : public Clock {
 public:
  /// Returns whole seconds.
  [[nodiscard]] double Now() override;
  [[nodiscard]] std::uint32_t GetTickCount() override;
  /// The system supports years from 1601.
  [[nodiscard]] std::string LongDate(double days) override;
};

}  // namespace qdix::os::win32
