// The parts of the machine that help.exe uses.
#pragma once

#include "os/dialogs.h"
#include "os/registry.h"
#include "os/top_level_windows.h"

namespace qdix::help_viewer {

/// Made from anything that has these parts: the whole system or only what the program brings. They must
/// outlive this object.
struct HelpSystem {
  template <class Wider>
  HelpSystem(Wider& wider) : registry(wider.registry), windows(wider.windows), dialogs(wider.dialogs) {}

  os::Registry& registry;
  os::Windows& windows;
  os::Dialogs& dialogs;
};

}  // namespace qdix::help_viewer
