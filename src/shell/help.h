// Help: the viewer, of which one is open at most, and the manual in the user's browser.
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

  /// Asks an open viewer to close, and does not wait for it.
  void CloseHelpFile();

  /// True where the viewer lies beside this program.
  [[nodiscard]] bool HasViewer() const;

  /// The first steps, in place of an open viewer. A viewer that is not there is the error of a missing file.
  base::Status FirstHelp();

  // The topic of a tab, in the same way.
  base::Status Command21_Click();
  base::Status Command22_Click();
  base::Status Command23_Click();
  base::Status Command24_Click();
  base::Status Command16_Click();
  base::Status Command19_Click();
  base::Status Command20_Click();
  base::Status Command17_Click();

  /// The manual, whole. One that is not there is the shell's to report.
  base::Status Command6_Click();

 private:
  base::Status OpenTopic(const char* command);

  const os::System& system_;
};

}  // namespace qdix::shell
