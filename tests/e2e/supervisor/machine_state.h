// What the tests change on the machine: the program's keys, system.ini with its backup, and the files beside
// the programs. The supervisor keeps it, because a killed test cannot restore anything.
#pragma once

#include <map>
#include <string>

#include "tests/e2e/driver/registry.h"
#include "tests/e2e/driver/system_ini_keeper.h"

namespace qdix::e2e {

class MachineState {
 public:
  MachineState();

  /// Restores all of it. No program may be running.
  void PutBack() const;

 private:
  using Files = std::map<std::string, std::string>;
  [[nodiscard]] static Files FilesBesideThePrograms();

  const ProgramRegistry registry_;
  const SystemIniKeeper system_;
  const Files files_;
};

}  // namespace qdix::e2e
