// How long the system has been running, as a label.
#pragma once

#include "os/clock.h"
#include "screens/startup_screen.h"

namespace qdix::app {

class UpTime {
 public:
  UpTime(os::Clock& clock, screens::StartupScreen& screen) : clock_(clock), screen_(screen) {}

  /// Whole hours, and minutes rounded to the nearest: after 59 minutes and a half it reads 0 hours and 0
  /// minutes. After 49.7 days the system counts from 0 again.
  void Show();

 private:
  os::Clock& clock_;
  screens::StartupScreen& screen_;
};

}  // namespace qdix::app
