// Shows in a label how long Windows has been running.
#pragma once

#include "os/clock.h"
#include "screens/startup_screen.h"

namespace qdix::app {

class UpTime {
 public:
  UpTime(os::Clock& clock, screens::StartupScreen& screen) : clock_(clock), screen_(screen) {}

  /// Shows whole hours, and minutes rounded to the nearest: after 59.5 minutes it reads 0 hours and 0
  /// minutes. Windows starts again from 0 after 49.7 days.
  void Show();

 private:
  os::Clock& clock_;
  screens::StartupScreen& screen_;
};

}  // namespace qdix::app
