// Writes the configuration of the swap file to system.ini.
#pragma once

#include "memory/memory_monitor.h"
#include "os/dialogs.h"
#include "screens/swap_file_screen.h"
#include "tuning/first_save.h"
#include "tuning/restart.h"
#include "tuning/swap/swap_file.h"
#include "tuning/system_ini.h"
#include "ui/application.h"

namespace qdix::tuning {

class SwapSave {
 public:
  /// What a save needs.
  struct Tools {
    SystemIni& system_ini;
    FirstSave& first_save;
    Restart& restart;
  };

  SwapSave(os::Dialogs& dialogs, const ui::Application& application, const memory::MemoryMonitor& monitor,
           screens::SwapFileScreen& screen, SwapFile& swap_file, const Tools& tools);

  /// "Save Changes". Records the previous settings at once; asks before any other change.
  base::Status Command18_Click();

 private:
  void SaveWindowsDefault();
  void SaveOwnSetup();
  void Write(const std::string& drive, double size_mb);
  [[nodiscard]] bool Agrees(const std::string& question, std::uint32_t flags = 0);
  void Show(const std::string& text);

  os::Dialogs& dialogs_;
  const ui::Application& application_;
  const memory::MemoryMonitor& monitor_;
  screens::SwapFileScreen& screen_;
  SwapFile& swap_file_;
  const Tools tools_;
};

}  // namespace qdix::tuning
