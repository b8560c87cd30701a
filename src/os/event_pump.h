// Keeps the program responsive during a long operation.
#pragma once

#include <cstdint>

namespace qdix::os {

class EventPump {
 public:
  /// Handles the waiting window events and returns, at once if there are none. Any handler of the program can
  /// run inside, even one that closes the main window. Drops messages that belong to no window. Handles
  /// nothing after the program has ended its main window.
  virtual void PumpEvents() = 0;

  /// Pumps events for `ms` milliseconds and sleeps while there are none. Returns early if the program ends.
  virtual void WaitMs(std::uint32_t ms) = 0;

 protected:
  ~EventPump() = default;
};

}  // namespace qdix::os
