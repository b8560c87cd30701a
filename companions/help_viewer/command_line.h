// The topic that the program is started with.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qdix::help_viewer {

/// The one decimal number that follows the program's name on its command line; nothing where there is none,
/// something else, or more. The name may be a path with blanks that does not stand in quotation marks, as the
/// main program writes it.
[[nodiscard]] std::optional<std::int32_t> TopicOfCommandLine(std::string_view command_line);

}  // namespace qdix::help_viewer
