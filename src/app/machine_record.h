// The program's machine-wide key, and the marker in it by which the first run on a machine is recognised.
#pragma once

#include "os/registry.h"

namespace qdix::app {

class MachineRecord {
 public:
  explicit MachineRecord(os::Registry& registry) : registry_(registry) {}

  /// Makes the key where it is missing; a refusal is passed over.
  void EnsureKey();

  /// True until MarkRun has been called once on this machine (or for this user, where the machine-wide key
  /// cannot be written).
  [[nodiscard]] bool IsFirstRun() const;

  /// Writes the marker machine-wide, or per user where that is refused.
  void MarkRun();

 private:
  os::Registry& registry_;
};

}  // namespace qdix::app
