// Reads one line of a topic's body as a block.
#pragma once

#include <optional>
#include <string_view>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// Maximum number of columns in a row. Further columns are dropped.
inline constexpr std::size_t kMaxCells = 8;

/// Returns nothing for a line that is not a block: a picture, an unknown kind, a step without its number.
[[nodiscard]] std::optional<Block> ReadBlock(std::string_view line);

}  // namespace qdix::help_viewer
