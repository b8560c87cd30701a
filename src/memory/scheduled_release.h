// Shared by the releases that start without the user: the bar in the graph, the number of passes, and the
// check box that suppresses the warning.
#pragma once

#include "cpu/cpu_usage.h"
#include "memory/cpu_limit.h"
#include "memory/manual_release.h"
#include "memory/memory_monitor.h"
#include "memory/memory_release.h"
#include "screens/quondix_screen.h"
#include "screens/startup_screen.h"

namespace qdix::memory {

class ScheduledRelease {
 public:
  struct Screens {
    screens::QuondixScreen& quondix;
    screens::StartupScreen& startup;
  };

  ScheduledRelease(MemoryRelease& release, MemoryMonitor& monitor, const cpu::CpuUsage& cpu_usage,
                   const ManualRelease& manual, const Screens& screens)
      : release_(release), monitor_(monitor), cpu_usage_(cpu_usage), manual_(manual), screens_(screens) {}

  /// True while the processor is too busy for a release with this limit.
  [[nodiscard]] bool IsHeldBack(const CpuLimit& limit) const {
    return limit.HoldsBack(cpu_usage_.AverageCpuUsage());
  }

  /// Returns the available memory in megabytes of 1,024,000 bytes. Also refreshes the memory display.
  [[nodiscard]] double AvailableMb() { return monitor_.MemStatus(); }

  /// Every scheduled release shows in the graph as a full-height bar.
  base::Status PushBar() { return screens_.quondix.XGraphMeter1.Update(ManualRelease::kReleaseBar); }

  /// Runs the passes with the amount chosen in `amounts`, which is read again before each pass. With kStop,
  /// the passes end as soon as the amount is less than the available memory.
  enum class WhenFree : bool {
    kGoOn,
    kStop
  };
  ReleaseOutcome Run(const ui::ListControl& amounts, WhenFree when_free);

 private:
  [[nodiscard]] bool EnoughIsFree(double amount_mb);
  [[nodiscard]] bool WarningIsSilenced();

  MemoryRelease& release_;
  MemoryMonitor& monitor_;
  const cpu::CpuUsage& cpu_usage_;
  const ManualRelease& manual_;
  Screens screens_;
};

}  // namespace qdix::memory
