// The CPU load display: how often the graph is updated.
#pragma once

#include "screens/startup_screen.h"
#include "shell/settings_store.h"

namespace qdix::cpu {

class CpuUsage {
 public:
  CpuUsage(shell::SettingsStore& settings, screens::StartupScreen& screen);

  /// Shows the stored number of display refreshes that make one update of the graph, 1 to 5.
  void LoadUpdateInterval();

  base::Status Slider7_Change(std::int32_t position);

 private:
  shell::SettingsStore& settings_;
  screens::StartupScreen& screen_;
};

}  // namespace qdix::cpu
