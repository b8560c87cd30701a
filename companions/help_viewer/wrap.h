// Where the lines of a text end.
#pragma once

#include <vector>

#include "help_viewer/topic.h"
#include "os/text_device.h"

namespace qdix::help_viewer {

struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// The look of a run in a block of this kind.
[[nodiscard]] os::FontLook LookOf(BlockKind kind, const Run& run);

/// Width of a stretch of the text, whichever looks it has.
[[nodiscard]] int WidthOf(os::TextDevice& device, BlockKind kind, const Text& text, Span span);

/// At least one line, which is empty for an empty text. Breaks at blanks, which belong to no line there, and
/// inside of words that are too wide; texts of one line are not broken. Every line has a character.
[[nodiscard]] std::vector<Span> Wrap(os::TextDevice& device, BlockKind kind, const Text& text, int width_px);

}  // namespace qdix::help_viewer
