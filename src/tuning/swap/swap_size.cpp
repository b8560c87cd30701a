#include "tuning/swap/swap_size.h"

#include "base/numbers.h"

namespace qdix::tuning {

/// The condition compares only a thousandth of the size, so any drive with a few megabytes free gets the
/// multiple.
double ProposedSwapMb(double total_ram_mb, double free_mb) {
  constexpr double kTimesMemory = 3;
  constexpr double kReserveMb = 10;
  if (total_ram_mb * kTimesMemory / 1000 < free_mb) return base::WholePart(total_ram_mb * kTimesMemory);
  return free_mb - kReserveMb;
}

base::Result<std::int16_t> SuggestedSwapMb(double total_ram_mb) {
  double times_memory = 2.3;
  if (total_ram_mb <= 140) times_memory = 2.5;
  if (total_ram_mb <= 70) times_memory = 3;
  return base::ToInt16(base::WholePart(total_ram_mb * times_memory));
}

}  // namespace qdix::tuning
