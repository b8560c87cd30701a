// The parts of the machine that configL.exe uses.
#pragma once

#include "os/dialogs.h"
#include "os/files.h"
#include "os/processes.h"
#include "os/shell_files.h"
#include "os/top_level_windows.h"

namespace qdix::config_launcher {

/// Made from anything that has these parts: the whole system or only what the program brings. They must
/// outlive this object.
struct ConfigSystem {
  template <class Wider>
  ConfigSystem(Wider& wider)
      : windows(wider.windows),
        dialogs(wider.dialogs),
        processes(wider.processes),
        shell_files(wider.shell_files),
        files(wider.files) {}

  os::Windows& windows;
  os::Dialogs& dialogs;
  os::Processes& processes;
  os::ShellFiles& shell_files;
  os::Files& files;
};

}  // namespace qdix::config_launcher
