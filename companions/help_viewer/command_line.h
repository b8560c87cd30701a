// Reads from the command line which topic to show at start.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qdix::help_viewer {

/// Returns the decimal number after the program's name on the command line; nothing if it is missing, not a
/// number, or followed by something else. The name may be a path with blanks and without quotation marks, as
/// the main program writes it.
[[nodiscard]] std::optional<std::int32_t> TopicOfCommandLine(std::string_view command_line);

}  // namespace qdix::help_viewer
