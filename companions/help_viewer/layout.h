// A topic in lines for a given width: where each piece of text stands. The same for the window and for paper.
#pragma once

#include <string_view>
#include <vector>

#include "help_viewer/topic.h"
#include "os/text_device.h"

namespace qdix::help_viewer {

/// A line of the picture, in pixels from the top of the topic. The texts of one line of a table's row share
/// it.
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
  /// Index of the link it belongs to, or -1.
  int link = -1;
  /// Where the characters come from; a label comes from nowhere and has no length.
  Passage source{};
  /// In the topic that was laid out.
  std::string_view characters{};
};

/// One link, whichever pieces it is made of.
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
  /// Margins included.
  int height = 0;
};

/// Looks of body texts and headings. Each is a size that the system's bitmap font has.
inline constexpr os::FontLook kBodyLook{.points = 8};
inline constexpr os::FontLook kHeadingLook{.points = 10, .is_bold = true};
inline constexpr os::FontLook kTitleLook{.points = 14, .is_bold = true};
inline constexpr os::FontLook kFixedLook{.points = 9, .is_fixed = true};

/// Any width is possible: a word that is wider than its line is broken, a letter that is, stands over. The
/// topic must outlive the layout. `margin_px` is left free on all four sides.
[[nodiscard]] Layout LayOut(const Topic& topic, os::TextDevice& device, int width_px, int margin_px);

}  // namespace qdix::help_viewer
