// The program's machine-wide key and the marker in it that identifies the first run on a machine.
#pragma once

#include "os/registry.h"

namespace qdix::app {

class MachineRecord {
 public:
  explicit MachineRecord(os::Registry& registry) : registry_(registry) {}

  /// Creates the key if it is missing. Ignores a failure.
  void EnsureKey();

  /// True until MarkRun has been called on this machine, or for this user if the machine-wide key cannot be
  /// written.
  [[nodiscard]] bool IsFirstRun() const;

  /// Writes the marker machine-wide, or per user if that fails.
  void MarkRun();

 private:
  os::Registry& registry_;
};

}  // namespace qdix::app
