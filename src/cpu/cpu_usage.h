// Reads the processor load from the statistics that Windows 95, 98 and ME keep in the registry's dynamic
// root. Owns the label, the graph and the average that holds releases back. Shows nothing, and reports no
// error, on a system without these statistics.
#pragma once

#include <array>
#include <cstdint>

#include "host/boxes.h"
#include "os/registry.h"
#include "registry/settings_store.h"
#include "screens/quondix_screen.h"
#include "screens/startup_screen.h"

namespace qdix::cpu {

class CpuUsage {
 public:
  CpuUsage(os::Registry& registry, host::Boxes& boxes, registry::SettingsStore& settings,
           screens::QuondixScreen& quondix, screens::StartupScreen& startup);

  /// Makes Windows start the statistic. Call it once, before the first reading.
  void StartCpuStatistics();
  /// Fills the samples with their start value and takes the first reading.
  void FirstCPUUSAGE();
  /// Takes one reading. Updates the display at every S-th call, where S is the position of Slider7. Reports
  /// an error in a message box.
  void CPUUsage();

  /// Returns the whole part of the mean of the last eight readings, in percent.
  [[nodiscard]] std::int32_t AverageCpuUsage() const;

  /// Shows the stored number of display refreshes per update of the graph, 1 to 5.
  void LoadUpdateInterval();
  base::Status Slider7_Change(std::int32_t position);

 private:
  /// False if the system keeps no such statistics. The caller closes the key.
  [[nodiscard]] bool OpenStatistics(const char* path, os::KeyHandle& key);
  /// Reads the load through an open key. Returns 0 if it cannot be read.
  [[nodiscard]] std::int32_t QueryLoad(os::KeyHandle key);
  /// True if the display was updated.
  base::Result<bool> TakeReading(std::int32_t reading);
  base::Status ShowAverage();
  void Report(const base::RuntimeError& error);

  os::Registry& registry_;
  host::Boxes& boxes_;
  registry::SettingsStore& settings_;
  screens::QuondixScreen& quondix_;
  screens::StartupScreen& startup_;
  /// Slots 1 to 7 of the samples, newest first: readings in percent.
  std::array<std::int32_t, 7> recent_samples_{};
  /// Slot 8, which is a byte.
  std::uint8_t oldest_sample_ = 0;
  /// Position in the display cycle, 1 to S.
  std::uint8_t cpu_tick_count_ = 0;
};

}  // namespace qdix::cpu
