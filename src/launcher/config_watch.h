// Opens the editor of the program list and reads the list again when the editor closes.
#pragma once

#include <cstdint>

#include "launcher/program_launcher.h"
#include "os/system.h"
#include "screens/launcher_screen.h"
#include "ui/timer.h"

namespace qdix::launcher {

class ConfigWatch {
 public:
  ConfigWatch(const os::System& system, screens::LauncherScreen& screen, ui::Timer& timer7,
              ProgramLauncher& launcher);

  /// "Configure Program List": starts the editor, or brings it to the front if it is already open. Returns an
  /// error if the editor cannot be started.
  base::Status Command15_Click();
  base::Status Timer7_Timer();

 private:
  [[nodiscard]] os::WindowHandle FindEditor();

  const os::System& system_;
  ui::Timer& timer7_;
  ProgramLauncher& launcher_;
  std::int16_t config_watch_ticks_ = 0;
};

}  // namespace qdix::launcher
