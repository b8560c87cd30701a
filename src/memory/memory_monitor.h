// Reads the machine's memory figures and shows them: gauges, labels, caption. Figures are megabytes of
// 1,024,000 bytes unless said otherwise.
#pragma once

#include <cstdint>

#include "cpu/cpu_usage.h"
#include "os/system.h"
#include "screens/quondix_screen.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::memory {

class MemoryMonitor {
 public:
  MemoryMonitor(const os::System& system, const ui::Application& application, ui::Form& form,
                screens::QuondixScreen& screen, cpu::CpuUsage& cpu_usage)
      : system_(system), application_(application), form_(form), screen_(screen), cpu_usage_(cpu_usage) {}

  /// Total physical memory in MB with fractions, unrounded. Totals of 2 GB and above read negative.
  [[nodiscard]] double TotalRAM() const;

  /// Swap file total; times 1,000 it is the swap file in units of 1,048,576 bytes.
  [[nodiscard]] double TotalSwapFile() const;

  /// TotalRAM rounded half to even; the 100 % mark of the gauge. 0 until SetTotals.
  [[nodiscard]] std::int16_t TotalRamMb() const { return total_ram_mb_; }

  /// Takes the machine's total for the rest of the run. A total that 16 bits do not hold is an overflow.
  base::Status SetTotalRamMb();

  /// Writes the two labels with the totals.
  void ShowTotals();

  /// Available physical memory in MB with two decimals; refreshes the swap file gauge and its label on the
  /// way. An error on the way is reported in a box at the first time of a run only, and the statement that
  /// failed is skipped.
  double MemStatus();

  /// Shows the available memory in the caption, the gauge and the percentage, then takes a reading of the
  /// processor load. Where the memory cannot be shown the caption says so, and there is no reading.
  void RefreshMemoryDisplay();

 private:
  base::Result<double> CorrectImplausible(double available_mb) const;
  base::Status ShowSwapFileUse(const os::MemoryStatus& status);
  base::Status ShowAvailable(double available_mb);
  void ReportOnce(const os::MemoryStatus& status);

  const os::System& system_;
  const ui::Application& application_;
  ui::Form& form_;
  screens::QuondixScreen& screen_;
  cpu::CpuUsage& cpu_usage_;
  std::int16_t total_ram_mb_ = 0;
  bool memory_error_shown_ = false;
};

}  // namespace qdix::memory
