// Reads the machine's memory figures and shows them in gauges, labels and the caption. Figures are megabytes
// of 1,024,000 bytes unless a comment says otherwise.
#pragma once

#include <cstdint>

#include "cpu/cpu_usage.h"
#include "host/boxes.h"
#include "os/memory.h"
#include "screens/quondix_screen.h"
#include "ui/form.h"

namespace qdix::memory {

class MemoryMonitor {
 public:
  MemoryMonitor(os::Memory& memory, host::Boxes& boxes, ui::Form& form, screens::QuondixScreen& screen,
                cpu::CpuUsage& cpu_usage)
      : memory_(memory), boxes_(boxes), form_(form), screen_(screen), cpu_usage_(cpu_usage) {}

  /// Returns the total physical memory in MB with fractions, unrounded. Totals of 2 GB and above are
  /// negative.
  [[nodiscard]] double TotalRAM() const;

  /// Returns the swap file total. Times 1,000 it counts units of 1,048,576 bytes.
  [[nodiscard]] double TotalSwapFile() const;

  /// Returns TotalRAM rounded half to even: the 100 % mark of the gauge. 0 before SetTotalRamMb.
  [[nodiscard]] std::int16_t TotalRamMb() const { return total_ram_mb_; }

  /// Reads the machine's total and keeps it for the rest of the run. Returns an overflow error if it
  /// does not fit into 16 bits.
  base::Status SetTotalRamMb();

  /// Shows both totals in their labels.
  void ShowTotals();

  /// Returns the available physical memory in MB with two decimals. Also refreshes the swap file gauge and
  /// its label. An error skips the statement that failed; only the first error of a run is reported in a
  /// message box.
  double MemStatus();

  /// Shows the available memory in the caption, the gauge and the percentage, then takes a reading of the
  /// processor load. If the memory cannot be shown, the caption says so and no reading is taken.
  void RefreshMemoryDisplay();

 private:
  base::Result<double> CorrectImplausible(double available_mb) const;
  base::Status ShowSwapFileUse(const os::MemoryStatus& status);
  base::Status ShowAvailable(double available_mb);
  void ReportOnce(const os::MemoryStatus& status);

  os::Memory& memory_;
  host::Boxes& boxes_;
  ui::Form& form_;
  screens::QuondixScreen& screen_;
  cpu::CpuUsage& cpu_usage_;
  std::int16_t total_ram_mb_ = 0;
  bool memory_error_shown_ = false;
};

}  // namespace qdix::memory
