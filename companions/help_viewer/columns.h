// The widths of a table's columns.
#pragma once

#include <vector>

#include "help_viewer/topic.h"
#include "os/text_device.h"

namespace qdix::help_viewer {

/// Space between two columns beside each other.
[[nodiscard]] constexpr int ColumnGap(int body_line_px) { return body_line_px; }

/// Widths of the columns of the table whose rows begin with the block `first`: what their texts take in one
/// line where all of that fits into the width, else shares of it, one pixel at least.
[[nodiscard]] std::vector<int> ColumnsOf(const Topic& topic, std::size_t first, os::TextDevice& device,
                                         int width_px, int body_line_px);

}  // namespace qdix::help_viewer
