// The two buttons "Browse...".
#pragma once

#include "config_launcher/boxes.h"
#include "config_launcher/config_screen.h"
#include "os/file_dialogs.h"

namespace qdix::config_launcher {

class Browse {
 public:
  Browse(os::FileDialogs& dialogs, ConfigScreen& screen, Boxes& boxes);

  /// Puts a program's command line into its field, and fills name and folder where they are empty.
  base::Status cmdBrowsePath_Click();
  base::Status cmdBrowseStartIn_Click();

 private:
  os::FileDialogs& dialogs_;
  ConfigScreen& screen_;
  Boxes& boxes_;
};

}  // namespace qdix::config_launcher
