// Writes the configuration of the swap file to system.ini.
#pragma once

#include "host/boxes.h"
#include "memory/memory_monitor.h"
#include "screens/swap_file_screen.h"
#include "tuning/first_save.h"
#include "tuning/restart.h"
#include "tuning/swap/swap_file.h"
#include "tuning/system_ini.h"

namespace qdix::tuning {

class SwapSave {
 public:
  /// What a save needs.
  struct Tools {
    SystemIni& system_ini;
    FirstSave& first_save;
    Restart& restart;
  };

  SwapSave(host::Boxes& boxes, const memory::MemoryMonitor& monitor, screens::SwapFileScreen& screen,
           SwapFile& swap_file, const Tools& tools);

  /// "Save Changes". Records the previous settings at once; asks before any other change.
  base::Status Command18_Click();

 private:
  void SaveWindowsDefault();
  void SaveOwnSetup();
  void Write(const std::string& drive, double size_mb);

  host::Boxes& boxes_;
  const memory::MemoryMonitor& monitor_;
  screens::SwapFileScreen& screen_;
  SwapFile& swap_file_;
  const Tools tools_;
};

}  // namespace qdix::tuning
