// The system on which the programs run inside the self-test: real memory, clock, drives, processor and event
// pump; a private registry and private files; silent stand-ins for everything that the user would notice.
#pragma once

#include <string>

#include "os/system.h"
#include "self_test/limited_memory.h"
#include "self_test/private_files.h"
#include "self_test/private_registry.h"
#include "self_test/quiet_system.h"

namespace qdix::self_test {

/// Places that no other program uses.
struct OwnPlaces {
  /// A key below HKEY_CURRENT_USER.
  std::string key;
  /// An existing folder, without a backslash at the end.
  std::string folder;
};

class PrivateSystem {
 public:
  /// The real system must outlive this object.
  PrivateSystem(const os::System& real, const OwnPlaces& places);
  PrivateSystem(const PrivateSystem&) = delete;
  PrivateSystem& operator=(const PrivateSystem&) = delete;
  ~PrivateSystem();

  [[nodiscard]] const os::System& GetSystem() const { return system_; }
  [[nodiscard]] QuietDialogs& Dialogs() { return dialogs_; }
  [[nodiscard]] const LimitedMemory& Memory() const { return memory_; }

 private:
  LimitedMemory memory_;
  PrivateRegistry registry_;
  QuietWindows windows_;
  QuietDialogs dialogs_;
  QuietProcesses processes_;
  QuietShell shell_;
  QuietShellFiles shell_files_;
  PrivateFiles files_;
  PrivateProfileFiles profile_files_;
  QuietSession session_;
  os::System system_;
};

}  // namespace qdix::self_test
