// The lists of megabyte amounts, and the amounts proposed until the user chooses one. Amounts are megabytes
// as a release counts them; memory sizes are megabytes of 1,024,000 bytes.
#pragma once

#include <span>
#include <string_view>

#include "ui/lists.h"

namespace qdix::memory {

/// Returns "1 MB" to "512 MB" in 30 steps, for the manual release.
[[nodiscard]] std::span<const std::string_view> ManualAmounts();

/// Returns "12 MB" to "512 MB" in 25 steps, for the automatic, timed and start-up releases.
[[nodiscard]] std::span<const std::string_view> ReleaseAmounts();

void AddItems(ui::ListControl& list, std::span<const std::string_view> items);

/// Returns half of the memory in whole megabytes: rounds the total down, halves it and rounds down again.
[[nodiscard]] double HalfOfMemory(double total_ram_mb);

/// Returns the last item whose number is at most half of the memory, or 0 if every item is above it. In
/// ascending lists this is the largest such item.
[[nodiscard]] double DefaultAmount(const ui::ListControl& list, double total_ram_mb);

/// Returns the proposed threshold in megabytes for a machine of this size: automatic releases start below it.
[[nodiscard]] double DefaultThreshold(double total_ram_mb);

/// Selects the first item whose leading number equals `number`; clears the selection if there is none.
void SelectNumber(ui::ListControl& list, double number);

/// Returns the leading number of the selected item, or 0 without a selection.
[[nodiscard]] double SelectedNumber(const ui::ListControl& list);

}  // namespace qdix::memory
