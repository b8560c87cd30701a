// Starts the program with Windows. Manages the program's entry under the machine-wide Run key, the StartUp
// shortcuts that older versions made, and the check box that shows both.
#pragma once

#include "os/system.h"
#include "registry/registry_paths.h"
#include "screens/startup_screen.h"

namespace qdix::shell {

class StartupRegistration {
 public:
  StartupRegistration(const os::System& system, screens::StartupScreen& screen);

  /// Ticks the check box if a shortcut or the entry exists, which writes the entry again with the program's
  /// present path. Otherwise clears it and removes a leftover shortcut.
  void CheckStartup();

  /// If ticked, sets the entry in the existing Run key, but never creates the key. If clear, removes the
  /// entry and both shortcuts in the StartUp folder.
  base::Status Check2_Click();

 private:
  void SetRunEntry();
  void StartupDelete();
  /// Does nothing if the shell has no Start menu or the file does not exist.
  void DeleteStartMenuShortcut(const std::string& name);

  const os::System& system_;
  screens::StartupScreen& screen_;
  registry::RegistryPaths paths_;
};

}  // namespace qdix::shell
