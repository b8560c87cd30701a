// One line of a topic's body as a block.
#pragma once

#include <optional>
#include <string_view>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// Columns of a row; further ones are left out.
inline constexpr std::size_t kMostCells = 8;

/// Nothing for a line of no block: a picture, an unknown kind, a step without its number.
[[nodiscard]] std::optional<Block> ReadBlock(std::string_view line);

}  // namespace qdix::help_viewer
