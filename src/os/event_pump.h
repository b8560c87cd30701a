// The one way in which a running operation lets the rest of the program live.
#pragma once

#include <cstdint>

namespace qdix::os {

class EventPump {
 public:
  virtual ~EventPump() = default;

  /// Handles the window events that are waiting and returns; with none waiting it returns at once. Any
  /// handler of the program can run inside, the closing of the main window included. Messages that belong to
  /// no window are taken and dropped. After the program has ended its main window it handles nothing.
  virtual void PumpEvents() = 0;

  /// The same for so long, sleeping while there is nothing to handle. Returns sooner when the program ends.
  virtual void WaitMs(std::uint32_t ms) = 0;
};

}  // namespace qdix::os
