// Reads the inline marks of a text in the topic stream.
#pragma once

#include <string_view>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// \x01 switches bold on and off. \x02 does the same for text that the user types or sees on the screen,
/// which is also bold. \x03<number>\x1F<text>\x04 is a link, which has the same look throughout. An
/// incomplete link is plain text. All other control characters are dropped.
[[nodiscard]] Text ReadMarkedText(std::string_view marked);

}  // namespace qdix::help_viewer
