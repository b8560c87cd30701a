// Converts a topic to plain text for the clipboard.
#pragma once

#include <string>

#include "help_viewer/topic.h"

namespace qdix::help_viewer {

/// Lines end with a carriage return and a line feed. Tabs separate the cells of a row. Blank lines surround
/// the title, headings and paragraphs.
[[nodiscard]] std::string PlainText(const Topic& topic);

}  // namespace qdix::help_viewer
