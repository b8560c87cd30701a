// Help: the viewer, one copy at a time, and the manual in the user's browser.
#pragma once

#include "os/system.h"
#include "screens/about_screen.h"
#include "screens/automatic_screen.h"
#include "screens/cache_screen.h"
#include "screens/launcher_screen.h"
#include "screens/quondix_screen.h"
#include "screens/startup_screen.h"
#include "screens/swap_file_screen.h"
#include "screens/time_intervals_screen.h"

namespace qdix::shell {

class Help {
 public:
  struct Screens {
    screens::QuondixScreen& quondix;
    screens::AutomaticScreen& automatic;
    screens::TimeIntervalsScreen& time_intervals;
    screens::StartupScreen& startup;
    screens::LauncherScreen& launcher;
    screens::CacheScreen& cache;
    screens::SwapFileScreen& swap_file;
    screens::AboutScreen& about;
  };

  Help(const os::System& system, const Screens& screens);

  /// Asks an open viewer to close and does not wait for it.
  void CloseHelpFile();

  /// True if the viewer is in the program's folder.
  [[nodiscard]] bool HasViewer() const;

  /// Shows the first steps and replaces an open viewer. Returns error 53 if the viewer is missing.
  base::Status FirstHelp();

  // Each shows the topic of its tab in the same way.
  base::Status Command21_Click();
  base::Status Command22_Click();
  base::Status Command23_Click();
  base::Status Command24_Click();
  base::Status Command16_Click();
  base::Status Command19_Click();
  base::Status Command20_Click();
  base::Status Command17_Click();

  /// Opens the whole manual in the browser. The shell reports a missing file.
  base::Status Command6_Click();

 private:
  base::Status OpenTopic(const char* command);

  const os::System& system_;
};

}  // namespace qdix::shell
