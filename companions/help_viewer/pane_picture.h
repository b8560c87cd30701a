// The picture of a topic: in the pane, and on paper.
#pragma once

#include "help_viewer/layout.h"

namespace qdix::help_viewer {

/// Colours as the surface takes them.
struct Palette {
  std::uint32_t background = 0xFFFFFFU;
  std::uint32_t text = 0;
  std::uint32_t link = 0;
  std::uint32_t marked_background = 0;
  std::uint32_t marked_text = 0;
};

/// What of the layout is drawn: the lines from `first_px` to before `end_px`, the first of these pixels at
/// `top_px` of the surface and everything `left_px` further to the right.
struct View {
  int first_px = 0;
  int end_px = 0;
  int left_px = 0;
  int top_px = 0;
};

/// Draws what stands in view, also in part. `marked` is the place of a word, or null. The background is the
/// caller's.
void DrawLayout(os::TextDevice& device, const Layout& layout, const View& view, const Palette& palette,
                const Passage* marked);

}  // namespace qdix::help_viewer
