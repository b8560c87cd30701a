// The column widths of a table.
#pragma once

#include <vector>

#include "help_viewer/topic.h"
#include "os/text_device.h"

namespace qdix::help_viewer {

/// Space between two columns.
[[nodiscard]] constexpr int ColumnGap(int body_line_px) { return body_line_px; }

/// Returns the column widths of the table whose rows begin with the block `first`. If all texts fit in one
/// line each, these are the widths of the texts; otherwise shares of `width_px`, at least one pixel each.
[[nodiscard]] std::vector<int> ColumnsOf(const Topic& topic, std::size_t first, os::TextDevice& device,
                                         int width_px, int body_line_px);

}  // namespace qdix::help_viewer
