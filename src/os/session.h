// The Windows session that the program runs in.
#pragma once

#include <cstdint>

namespace qdix::os {

/// Ends all programs and restarts the machine.
inline constexpr std::uint32_t kEwxReboot = 2;

class Session {
 public:
  /// Asks every program to end, including this one, and then ends the session. False if the system refuses.
  /// True means only that it has begun.
  virtual bool ExitWindowsEx(std::uint32_t flags, std::uint32_t reserved) = 0;

 protected:
  ~Session() = default;
};

}  // namespace qdix::os
