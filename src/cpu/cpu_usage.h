// The processor's load, from the statistics that Windows 95, 98 and ME keep in the registry's dynamic root:
// the label, the graph, and the average that holds releases back. Where there are no such statistics nothing
// is shown and nothing is said.
#pragma once

#include <array>
#include <cstdint>

#include "os/system.h"
#include "screens/quondix_screen.h"
#include "screens/startup_screen.h"
#include "shell/settings_store.h"
#include "ui/application.h"

namespace qdix::cpu {

class CpuUsage {
 public:
  CpuUsage(const os::System& system, const ui::Application& application, shell::SettingsStore& settings,
           screens::QuondixScreen& quondix, screens::StartupScreen& startup);

  /// Makes the system keep the statistic. Once, before the first reading.
  void StartCpuStatistics();
  /// Fills the samples with their start values and a first reading.
  void FirstCPUUSAGE();
  /// Takes one reading; at every S-th call, S being the position of Slider7, the display follows. An error is
  /// told in a box.
  void CPUUsage();

  /// Whole part of the mean of the last eight readings, in percent.
  [[nodiscard]] std::int32_t AverageCpuUsage() const;

  /// Shows the stored number of display refreshes that make one update of the graph, 1 to 5.
  void LoadUpdateInterval();
  base::Status Slider7_Change(std::int32_t position);

 private:
  /// False where the system keeps no such statistics; the caller closes the key.
  [[nodiscard]] bool OpenStatistics(const char* path, os::KeyHandle& key);
  /// Reads the load through an open key; 0 where it cannot be read.
  [[nodiscard]] std::int32_t QueryLoad(os::KeyHandle key);
  /// True where the display has been updated.
  base::Result<bool> TakeReading(std::int32_t reading);
  base::Status ShowAverage();
  void Report(const base::RuntimeError& error);

  const os::System& system_;
  const ui::Application& application_;
  shell::SettingsStore& settings_;
  screens::QuondixScreen& quondix_;
  screens::StartupScreen& startup_;
  /// Slots 1 to 7 of the samples, the newest first; readings in percent.
  std::array<std::int32_t, 7> recent_samples_{};
  /// Slot 8, which holds a byte.
  std::uint8_t oldest_sample_ = 0;
  /// Position in the cycle of the display, 1 to S.
  std::uint8_t cpu_tick_count_ = 0;
};

}  // namespace qdix::cpu
