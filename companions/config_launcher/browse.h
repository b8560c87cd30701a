// The two "Browse..." buttons.
#pragma once

#include "config_launcher/config_screen.h"
#include "config_launcher/config_system.h"
#include "config_launcher/editor_boxes.h"
#include "config_launcher/entry_list.h"
#include "os/file_dialogs.h"

namespace qdix::config_launcher {

class Browse {
 public:
  Browse(const ConfigSystem& system, os::FileDialogs& dialogs, ConfigScreen& screen, EditorBoxes& boxes,
         EntryList& entry_list);

  /// Starts a new entry with the name, command line and folder of the program that the user picks.
  base::Status cmdBrowsePath_Click();
  base::Status cmdBrowseStartIn_Click();

 private:
  const ConfigSystem& system_;
  os::FileDialogs& dialogs_;
  ConfigScreen& screen_;
  EditorBoxes& boxes_;
  EntryList& entry_list_;
};

}  // namespace qdix::config_launcher
