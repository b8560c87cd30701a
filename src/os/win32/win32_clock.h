// Date and time of the real system. Forwards; the calendar arithmetic is shared with everybody else.
#pragma once

#include "os/clock.h"

namespace qdix::os::win32 {

class Win32Clock final : public Clock {
 public:
  /// In whole seconds.
  [[nodiscard]] double Now() override;
  [[nodiscard]] std::uint32_t GetTickCount() override;
  /// The system knows the years from 1601 on.
  [[nodiscard]] std::string LongDate(double days) override;
};

}  // namespace qdix::os::win32
