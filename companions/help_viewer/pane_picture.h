// Draws a topic in the pane and on paper.
#pragma once

#include "help_viewer/layout.h"

namespace qdix::help_viewer {

/// Colours in the format of the surface.
struct Palette {
  std::uint32_t background = 0xFFFFFFU;
  std::uint32_t text = 0;
  std::uint32_t link = 0;
  std::uint32_t marked_background = 0;
  std::uint32_t marked_text = 0;
};

/// The part of the layout to draw: from `first_px` to before `end_px`. The first of these pixels is drawn at
/// `top_px` of the surface, and everything is shifted right by `left_px`.
struct View {
  int first_px = 0;
  int end_px = 0;
  int left_px = 0;
  int top_px = 0;
};

/// Draws everything that is at least partly in view. `marked` is the place of a word, or null. The caller
/// draws the background.
void DrawLayout(os::TextDevice& device, const Layout& layout, const View& view, const Palette& palette,
                const Passage* marked);

}  // namespace qdix::help_viewer
