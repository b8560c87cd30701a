// The lists of megabyte amounts and the amounts that are proposed when none was chosen yet. Amounts are
// megabytes as a release counts them; memory sizes are megabytes of 1,024,000 bytes.
#pragma once

#include <span>
#include <string_view>

#include "ui/lists.h"

namespace qdix::memory {

/// "1 MB" to "512 MB" in 30 steps, for the manual release.
[[nodiscard]] std::span<const std::string_view> ManualAmounts();

/// "12 MB" to "512 MB" in 25 steps, for the automatic, timed and start-up releases.
[[nodiscard]] std::span<const std::string_view> ReleaseAmounts();

void AddItems(ui::ListControl& list, std::span<const std::string_view> items);

/// Half of the memory in whole megabytes: the whole part of half the whole part.
[[nodiscard]] double HalfOfMemory(double total_ram_mb);

/// The largest item that is not above half of the memory, as a number; 0 when every item is.
[[nodiscard]] double DefaultAmount(const ui::ListControl& list, double total_ram_mb);

/// The level, in megabytes, below which an automatic release is proposed for a machine of this size.
[[nodiscard]] double DefaultThreshold(double total_ram_mb);

/// Selects the first item whose leading number equals `number`; selects nothing when there is none.
void SelectNumber(ui::ListControl& list, double number);

/// The leading number of the selected item, 0 without a selection.
[[nodiscard]] double SelectedNumber(const ui::ListControl& list);

}  // namespace qdix::memory
