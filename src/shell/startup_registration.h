// Starting with Windows: the program's entry under the machine-wide Run key, and the check box that stands
// for it.
#pragma once

#include "os/system.h"
#include "screens/startup_screen.h"

namespace qdix::shell {

class StartupRegistration {
 public:
  StartupRegistration(const os::System& system, screens::StartupScreen& screen);

  /// Ticks the box when the entry exists, which writes it again with the program's present path; clears it
  /// otherwise.
  void CheckStartup();

  /// Ticked: sets the entry in the existing Run key, which is never made here. Clear: removes the entry.
  base::Status Check2_Click();

 private:
  const os::System& system_;
  screens::StartupScreen& screen_;
};

}  // namespace qdix::shell
