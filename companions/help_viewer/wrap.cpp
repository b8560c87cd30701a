#include "help_viewer/wrap.h"

#include <algorithm>

#include "help_viewer/layout.h"

namespace qdix::help_viewer {

namespace {

constexpr char kBlank = ' ';

/// Returns the end of the run with this index.
std::size_t RunEnd(const Text& text, std::size_t run) {
  return run + 1 < text.runs.size() ? text.runs[run + 1].begin : text.characters.size();
}

/// Adds words to a line until it is full.
class Wrapper {
 public:
  Wrapper(os::TextDevice& device, BlockKind kind, const Text& text, int width_px)
      : device_(device), kind_(kind), text_(text), width_px_(width_px) {}

  std::vector<Span> Wrap() {
    std::size_t position = SkipBlanks(0);
    line_ = {position, position};
    while (position < text_.characters.size()) {
      const std::size_t end = std::min(text_.characters.find(kBlank, position), text_.characters.size());
      AddWord({position, end});
      position = SkipBlanks(end);
    }
    lines_.push_back(line_);
    return std::move(lines_);
  }

 private:
  [[nodiscard]] std::size_t SkipBlanks(std::size_t position) const {
    return std::min(text_.characters.find_first_not_of(kBlank, position), text_.characters.size());
  }
  [[nodiscard]] int Width(Span span) const { return WidthOf(device_, kind_, text_, span); }

  void AddWord(Span word) {
    const bool is_first = line_.begin == line_.end;
    // Includes the blanks before the word.
    const int grown = line_width_px_ + Width({line_.end, word.end});
    if (grown <= width_px_ || (is_first && word.end == word.begin + 1)) {
      line_.end = word.end;
      line_width_px_ = grown;
      return;
    }
    if (!is_first) {
      lines_.push_back(line_);
      StartLineAt(word.begin);
    }
    BreakWord(word);
  }

  /// Fills whole lines until the rest of the word fits in one line.
  void BreakWord(Span word) {
    int width = Width(word);
    while (width > width_px_ && word.end > word.begin + 1) {
      const std::size_t cut = FittingEnd(word);
      lines_.push_back({word.begin, cut});
      word.begin = cut;
      width = Width(word);
    }
    line_ = word;
    line_width_px_ = width;
  }

  /// Returns the end of the longest part that fits, at least one character.
  [[nodiscard]] std::size_t FittingEnd(Span word) const {
    std::size_t fits = word.begin + 1;
    std::size_t beyond = word.end;
    while (beyond - fits > 1) {
      const std::size_t middle = fits + (beyond - fits) / 2;
      (Width({word.begin, middle}) <= width_px_ ? fits : beyond) = middle;
    }
    return fits;
  }

  void StartLineAt(std::size_t position) {
    line_ = {position, position};
    line_width_px_ = 0;
  }

  os::TextDevice& device_;
  BlockKind kind_;
  const Text& text_;
  int width_px_;
  std::vector<Span> lines_;
  Span line_;
  int line_width_px_ = 0;
};

}  // namespace

os::FontLook LookOf(BlockKind kind, const Run& run) {
  os::FontLook look = kBodyLook;
  if (kind == BlockKind::kTitle) look = kTitleLook;
  if (kind == BlockKind::kHeading) look = kHeadingLook;
  if (kind == BlockKind::kFixed) look = kFixedLook;
  look.is_bold = look.is_bold || run.is_bold || kind == BlockKind::kHeaderRow;
  look.is_underlined = run.link != kNoLink;
  return look;
}

int WidthOf(os::TextDevice& device, BlockKind kind, const Text& text, Span span) {
  int width = 0;
  for (std::size_t run = 0; run < text.runs.size(); ++run) {
    const std::size_t begin = std::max(text.runs[run].begin, span.begin);
    const std::size_t end = std::min(RunEnd(text, run), span.end);
    if (begin >= end) continue;
    const std::string_view characters(text.characters);
    width +=
        device.GetTextExtentPoint32A(LookOf(kind, text.runs[run]), characters.substr(begin, end - begin));
  }
  return width;
}

std::vector<Span> Wrap(os::TextDevice& device, BlockKind kind, const Text& text, int width_px) {
  if (kind == BlockKind::kFixed) return {{0, text.characters.size()}};
  return Wrapper(device, kind, text, width_px).Wrap();
}

}  // namespace qdix::help_viewer
