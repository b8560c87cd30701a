// Starting with Windows: the program's entry under the machine-wide Run key, the shortcuts in the StartUp
// folder that older versions made, and the check box that stands for both.
#pragma once

#include "os/system.h"
#include "screens/startup_screen.h"
#include "shell/registry_paths.h"

namespace qdix::shell {

class StartupRegistration {
 public:
  StartupRegistration(const os::System& system, screens::StartupScreen& screen);

  /// Ticks the box where a shortcut or the entry exists, which writes the entry again with the program's
  /// present path. Otherwise clears it and removes a shortcut that is left over.
  void CheckStartup();

  /// Ticked: sets the entry in the existing Run key, which is never made here. Clear: removes the entry and
  /// both shortcuts of the StartUp folder.
  base::Status Check2_Click();

 private:
  void SetRunEntry();
  void StartupDelete();
  /// Nothing happens where the shell has no Start menu, or the file is not there.
  void DeleteStartMenuShortcut(const std::string& name);

  const os::System& system_;
  screens::StartupScreen& screen_;
  RegistryPaths paths_;
};

}  // namespace qdix::shell
