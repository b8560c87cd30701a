#include "memory/amount_lists.h"

#include <array>

#include "base/numbers.h"

namespace qdix::memory {

namespace {

constexpr std::array<std::string_view, 30> kManualAmounts{
    "1 MB",   "2 MB",   "4 MB",   "6 MB",   "8 MB",   "12 MB",  "16 MB",  "20 MB",  "24 MB",  "28 MB",
    "32 MB",  "40 MB",  "48 MB",  "56 MB",  "64 MB",  "72 MB",  "88 MB",  "104 MB", "120 MB", "136 MB",
    "168 MB", "200 MB", "232 MB", "264 MB", "296 MB", "328 MB", "360 MB", "424 MB", "480 MB", "512 MB"};

/// The automatic, timed and start-up releases leave out the amounts below 12 MB.
constexpr std::size_t kFirstReleaseAmount = 5;

}  // namespace

std::span<const std::string_view> ManualAmounts() { return kManualAmounts; }

std::span<const std::string_view> ReleaseAmounts() {
  return std::span(kManualAmounts).subspan(kFirstReleaseAmount);
}

void AddItems(ui::ListControl& list, std::span<const std::string_view> items) {
  for (const std::string_view item : items) list.AddItem(item);
}

double HalfOfMemory(double total_ram_mb) { return base::WholePart(base::WholePart(total_ram_mb) / 2); }

double DefaultAmount(const ui::ListControl& list, double total_ram_mb) {
  const double half = HalfOfMemory(total_ram_mb);
  for (int index = list.Count() - 1; index >= 0; --index) {
    const double amount = base::ParseLeadingNumber(list.Item(index));
    if (amount <= half) return amount;
  }
  return 0;
}

double DefaultThreshold(double total_ram_mb) {
  struct Step {
    double below_mb;
    double threshold_mb;
  };
  static constexpr std::array<Step, 4> kSteps{{{33, 1}, {66, 2}, {98, 4}, {132, 6}}};
  constexpr double kLargestThreshold = 8;

  const double total_mb = base::WholePart(total_ram_mb);
  for (const Step& step : kSteps) {
    if (total_mb < step.below_mb) return step.threshold_mb;
  }
  return kLargestThreshold;
}

void SelectNumber(ui::ListControl& list, double number) {
  for (int index = 0; index < list.Count(); ++index) {
    if (base::ParseLeadingNumber(list.Item(index)) != number) continue;
    base::Ignore(list.SetSelectedIndex(index));  // the row exists
    return;
  }
  base::Ignore(list.SetSelectedIndex(ui::ListControl::kNoSelection));
}

double SelectedNumber(const ui::ListControl& list) { return base::ParseLeadingNumber(list.SelectedText()); }

}  // namespace qdix::memory
