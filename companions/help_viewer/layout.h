// Breaks a topic into lines of a given width and places each piece of text. Used for the window and for
// paper.
#pragma once

#include <string_view>
#include <vector>

#include "help_viewer/topic.h"
#include "os/text_device.h"

namespace qdix::help_viewer {

/// A line of the layout, in pixels from the top of the topic. The cells of a table row share lines.
struct Line {
  int top = 0;
  int height = 0;
  std::size_t block = 0;
};

/// Characters of one look in one line.
struct Piece {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  std::size_t line = 0;
  os::FontLook look{};
  /// Index of the link that contains the piece, or -1.
  int link = -1;
  /// Where the characters come from. A label has no source: its length is 0.
  Passage source{};
  /// Points into the topic that was laid out.
  std::string_view characters{};
};

/// One link with all its pieces.
struct LinkTarget {
  std::int32_t number = 0;
  int top = 0;
  int height = 0;
};

/// A line drawn below the headings of a table.
struct Rule {
  int left = 0;
  int top = 0;
  int width = 0;
};

struct Layout {
  std::vector<Line> lines{};
  /// In the order of the lines.
  std::vector<Piece> pieces{};
  std::vector<LinkTarget> links{};
  std::vector<Rule> rules{};
  /// Includes the margins.
  int height = 0;
};

/// The looks of body text and headings. Each is a size that the bitmap font of Windows has.
inline constexpr os::FontLook kBodyLook{.points = 8};
inline constexpr os::FontLook kHeadingLook{.points = 10, .is_bold = true};
inline constexpr os::FontLook kTitleLook{.points = 14, .is_bold = true};
inline constexpr os::FontLook kFixedLook{.points = 9, .is_fixed = true};

/// Accepts any width: a word wider than a line is broken, and a single character wider than a line sticks
/// out. The topic must outlive the layout. `margin_px` stays free on all four sides.
[[nodiscard]] Layout LayOut(const Topic& topic, os::TextDevice& device, int width_px, int margin_px);

}  // namespace qdix::help_viewer
