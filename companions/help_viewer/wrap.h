// Finds the line breaks of a text.
#pragma once

#include <vector>

#include "help_viewer/topic.h"
#include "os/text_device.h"

namespace qdix::help_viewer {

struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// Returns the look of a run in a block of this kind.
[[nodiscard]] os::FontLook LookOf(BlockKind kind, const Run& run);

/// Returns the width of a part of the text, whatever its looks.
[[nodiscard]] int WidthOf(os::TextDevice& device, BlockKind kind, const Text& text, Span span);

/// Returns at least one line, which is empty for an empty text. Breaks at blanks, which then belong to no
/// line, and inside words that are too wide. Fixed-width text is not broken. Every other line has at least
/// one character.
[[nodiscard]] std::vector<Span> Wrap(os::TextDevice& device, BlockKind kind, const Text& text, int width_px);

}  // namespace qdix::help_viewer
