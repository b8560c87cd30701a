// A topic as plain text, for the clipboard.
#pragma once

#include <string>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// Lines end in a carriage return and a line feed; the cells of a row have tabs between them; blank lines
/// stand round title, headings and paragraphs.
[[nodiscard]] std::string PlainText(const Topic& topic);

}  // namespace qdix::help_viewer
