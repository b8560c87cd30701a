// The marks inside of a text of the topic stream.
#pragma once

#include <string_view>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// \x01 switches bold on and off, \x02 the look of what is typed or stands on the screen (bold as well);
/// \x03<number>\x1F<text>\x04 is a link, which has one look throughout. A link that is not complete is plain
/// text; all other control characters are left out.
[[nodiscard]] Text ReadMarkedText(std::string_view marked);

}  // namespace qdix::help_viewer
