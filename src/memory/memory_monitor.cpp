#include "memory/memory_monitor.h"

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"

namespace qdix::memory {

namespace {

/// The record's fields are unsigned. The program reads them as signed, so 2 GB and more are negative.
std::int32_t Signed(std::uint32_t field) { return static_cast<std::int32_t>(field); }

/// Returns the available megabytes before they are rounded to two decimals.
double AvailableMb(const os::MemoryStatus& status) {
  return base::WholePart(Signed(status.available_physical) / 1.024) / 1000000;
}

/// The gauges hold half of a percentage.
std::string DoubledText(const controls::Meter3& gauge) { return base::TextOf(gauge.Value() * 2); }

}  // namespace

double MemoryMonitor::TotalRAM() const {
  return base::BytesToMemoryMb(Signed(memory_.GlobalMemoryStatus().total_physical));
}

double MemoryMonitor::TotalSwapFile() const {
  return base::BytesToSwapFileThousandMb(Signed(memory_.GlobalMemoryStatus().total_page_file));
}

base::Status MemoryMonitor::SetTotalRamMb() {
  const base::Result<std::int16_t> rounded = base::ToInt16(TotalRAM());
  if (!rounded.Ok()) return rounded.Error();
  total_ram_mb_ = rounded.Value();
  return base::kDone;
}

void MemoryMonitor::ShowTotals() {
  screen_.lblTotalMem.SetCaption(
      base::Concat({"Total Physical Memory:  ", base::FormatThousands(TotalRAM() * 1000), " KB"}));
  screen_.lblSwapfile.SetCaption(
      base::Concat({"Virtual Memory (Swapfile) :  ", base::FormatThousands(TotalSwapFile() * 1000), " MB"}));
}

double MemoryMonitor::MemStatus() {
  const os::MemoryStatus status = memory_.GlobalMemoryStatus();
  double available_mb = base::ParseLeadingNumber(base::FormatTwoDecimals(AvailableMb(status)));

  const base::Result<double> plausible = CorrectImplausible(available_mb);
  if (plausible.Ok()) {
    available_mb = plausible.Value();
  } else {
    ReportOnce(status);
  }
  if (!ShowSwapFileUse(status).Ok()) ReportOnce(status);
  screen_.lblSwapfileUsed.SetCaption(DoubledText(screen_.Gauge2) + "% Used");
  return available_mb;
}

/// If more memory is available than there is in total, one of the two was misread. The figure shown is then
/// deliberately small.
base::Result<double> MemoryMonitor::CorrectImplausible(double available_mb) const {
  if (available_mb <= total_ram_mb_) return available_mb;
  const base::Result<std::int16_t> corrected = base::ToInt16(available_mb / 102.4);
  if (!corrected.Ok()) return corrected.Error();
  return static_cast<double>(corrected.Value());
}

base::Status MemoryMonitor::ShowSwapFileUse(const os::MemoryStatus& status) {
  const std::int32_t total = Signed(status.total_page_file);
  if (total == 0) return base::kDone;
  const base::Result<std::int32_t> used = base::SubtractInt32(total, Signed(status.available_page_file));
  if (!used.Ok()) return used.Error();
  const double half_percent = static_cast<double>(used.Value()) / total * 100 / 2;
  const base::Result<std::int16_t> level = base::ToInt16(half_percent);
  if (!level.Ok()) return level.Error();
  return screen_.Gauge2.SetValue(level.Value());
}

/// Computes in floating point throughout, because the error report must not fail itself.
void MemoryMonitor::ReportOnce(const os::MemoryStatus& status) {
  if (memory_error_shown_) return;
  memory_error_shown_ = true;  // before the box: the display is still refreshed while it is open
  const double total = Signed(status.total_page_file);
  const double used = total - Signed(status.available_page_file);
  const double used_percent = total == 0 ? 0 : base::WholePart(used / total * 100);
  std::string text = "An error has occurred. The following info may help debug.";
  text += base::kLineBreak;
  text += "Available RAM : " + base::FormatTwoDecimals(AvailableMb(status));
  text += base::kLineBreak;
  text += "VM : " + base::ShortestText(used_percent);
  text += base::kLineBreak;
  text += "Total Ram : " + base::TextOf(total_ram_mb_);
  boxes_.Show(text);
}

void MemoryMonitor::RefreshMemoryDisplay() {
  const double available_mb = MemStatus();
  if (form_.Unloaded()) return;  // closed while the error report was open
  const std::string caption = base::ShortestText(available_mb) + " MB   Q-DIX";
  form_.SetCaption(caption);
  if (ShowAvailable(available_mb).Ok()) {
    cpu_usage_.CPUUsage();
  } else {
    form_.SetCaption(caption + " - This reading is Incorrect. See our support page.");
  }
}

base::Status MemoryMonitor::ShowAvailable(double available_mb) {
  const base::Result<double> share = base::Divide(available_mb, total_ram_mb_);
  if (!share.Ok()) return share.Error();
  const base::Result<std::int16_t> level = base::ToInt16(base::WholePart(share.Value() * 100 / 2));
  if (!level.Ok()) return level.Error();
  const base::Status shown = screen_.Gauge1.SetValue(level.Value());
  if (!shown.Ok()) return shown;
  screen_.lblPercentFree.SetCaption(DoubledText(screen_.Gauge1) + "%  Available RAM");
  return base::kDone;
}

}  // namespace qdix::memory
