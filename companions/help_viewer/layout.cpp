#include "help_viewer/layout.h"

#include <algorithm>

#include "help_viewer/columns.h"
#include "help_viewer/wrap.h"

namespace qdix::help_viewer {

namespace {

bool IsRow(BlockKind kind) { return kind == BlockKind::kHeaderRow || kind == BlockKind::kRow; }

bool IsItem(BlockKind kind) { return kind == BlockKind::kBullet || kind == BlockKind::kStep; }

/// Returns the space between two blocks in quarters of a body line.
int QuartersBetween(BlockKind above, BlockKind below) {
  if (below == BlockKind::kHeading) return 4;
  if (above == BlockKind::kTitle) return 3;
  if (above == BlockKind::kHeading) return 1;
  if (above == BlockKind::kFixed && below == BlockKind::kFixed) return 0;
  if (IsRow(above) && IsRow(below)) return 1;
  if (IsItem(above) && IsItem(below)) return 1;
  return 2;
}

class Composer {
 public:
  Composer(const Topic& topic, os::TextDevice& device, int width_px, int margin_px)
      : topic_(topic),
        device_(device),
        width_px_(std::max(width_px - 2 * margin_px, 1)),
        margin_px_(margin_px),
        body_px_(std::max(device.GetTextMetricsA(kBodyLook).line_px, 1)),
        top_(margin_px) {}

  Layout Compose() {
    for (block_ = 0; block_ < topic_.blocks.size(); ++block_) {
      if (block_ != 0) top_ += QuartersBetween(Kind(block_ - 1), Kind(block_)) * body_px_ / 4;
      first_piece_ = layout_.pieces.size();
      if (IsRow(Kind(block_))) {
        AddRow();
      } else {
        AddTexts();
      }
    }
    layout_.height = top_ + margin_px_;
    return std::move(layout_);
  }

 private:
  [[nodiscard]] BlockKind Kind(std::size_t block) const { return topic_.blocks[block].kind; }
  [[nodiscard]] const Block& TheBlock() const { return topic_.blocks[block_]; }

  void AddTexts() {
    const int indent = TheBlock().label.empty() ? 0 : 2 * body_px_;
    const std::size_t first = layout_.lines.size();
    if (indent != 0) PlaceLabel(first);
    const Text& text = TheBlock().cells.front();
    AddLines(Wrap(device_, TheBlock().kind, text, std::max(width_px_ - indent, 1)), 0, margin_px_ + indent,
             first);
    FinishLines();
  }

  void PlaceLabel(std::size_t line) {
    const std::string_view label(TheBlock().label);
    const int width = device_.GetTextExtentPoint32A(kBodyLook, label);
    // Right-aligned, with a gap before the text.
    const int right = margin_px_ + 2 * body_px_ - body_px_ / 2;
    layout_.pieces.push_back({.left = std::max(right - width, margin_px_),
                              .width = width,
                              .line = line,
                              .look = kBodyLook,
                              .source = {.block = block_},
                              .characters = label});
  }

  /// All rows of a table have the same columns.
  void AddRow() {
    if (block_ == 0 || !IsRow(Kind(block_ - 1))) {
      columns_ = ColumnsOf(topic_, block_, device_, width_px_, body_px_);
    }
    const std::size_t first = layout_.lines.size();
    int left = margin_px_;
    for (std::size_t cell = 0; cell < TheBlock().cells.size(); ++cell) {
      const int width = columns_[cell];
      AddLines(Wrap(device_, TheBlock().kind, TheBlock().cells[cell], width), cell, left, first);
      left += width + ColumnGap(body_px_);
    }
    FinishLines();
    if (TheBlock().kind == BlockKind::kHeaderRow) {
      layout_.rules.push_back({.left = margin_px_, .top = top_, .width = left - margin_px_});
      ++top_;
    }
  }

  /// Places the lines of a text one below the other, starting at the line `first`, which cells of the same
  /// row share.
  void AddLines(const std::vector<Span>& spans, std::size_t cell, int left, std::size_t first) {
    const Text& text = TheBlock().cells[cell];
    std::size_t line = first;
    for (const Span& span : spans) {
      PlacePieces(text, span, cell, left, line);
      ++line;
    }
    line_count_ = std::max(line_count_, spans.size());
  }

  void PlacePieces(const Text& text, Span span, std::size_t cell, int left, std::size_t line) {
    for (std::size_t run = 0; run < text.runs.size(); ++run) {
      const std::size_t run_end =
          run + 1 < text.runs.size() ? text.runs[run + 1].begin : text.characters.size();
      const std::size_t begin = std::max(text.runs[run].begin, span.begin);
      const std::size_t end = std::min(run_end, span.end);
      if (begin >= end) continue;
      const os::FontLook look = LookOf(TheBlock().kind, text.runs[run]);
      const std::string_view characters = std::string_view(text.characters).substr(begin, end - begin);
      const int width = device_.GetTextExtentPoint32A(look, characters);
      layout_.pieces.push_back({.left = left,
                                .width = width,
                                .line = line,
                                .look = look,
                                .link = LinkOf(text.runs[run], cell, run),
                                .source = {block_, cell, begin, end - begin},
                                .characters = characters});
      left += width;
    }
  }

  /// Relies on the pieces of a link being consecutive.
  int LinkOf(const Run& run, std::size_t cell, std::size_t run_index) {
    if (run.link == kNoLink) return -1;
    const Passage identity{block_, cell, run_index, 0};
    if (layout_.links.empty() || !(identity == last_link_)) {
      layout_.links.push_back({.number = run.link});
      last_link_ = identity;
    }
    return static_cast<int>(layout_.links.size()) - 1;
  }

  /// Sets the heights of the block's lines and of the pieces in them.
  void FinishLines() {
    const auto first_piece = layout_.pieces.begin() + static_cast<std::ptrdiff_t>(first_piece_);
    std::sort(first_piece, layout_.pieces.end(), [](const Piece& one, const Piece& other) {
      return one.line != other.line ? one.line < other.line : one.left < other.left;
    });
    const os::FontHeight height = device_.GetTextMetricsA(LookOf(TheBlock().kind, {}));
    for (std::size_t line = 0; line < line_count_; ++line) {
      layout_.lines.push_back({.top = top_, .height = height.line_px, .block = block_});
      top_ += height.line_px;
    }
    for (auto piece = first_piece; piece != layout_.pieces.end(); ++piece) {
      const os::FontHeight own = device_.GetTextMetricsA(piece->look);
      piece->top = layout_.lines[piece->line].top + height.ascent_px - own.ascent_px;
      piece->height = own.line_px;
      if (piece->link >= 0) Enclose(layout_.links[static_cast<std::size_t>(piece->link)], *piece);
    }
    line_count_ = 0;
  }

  static void Enclose(LinkTarget& link, const Piece& piece) {
    if (link.height == 0) link.top = piece.top;
    link.height = piece.top + piece.height - link.top;
  }

  const Topic& topic_;
  os::TextDevice& device_;
  int width_px_;
  int margin_px_;
  int body_px_;
  int top_;
  std::size_t block_ = 0;
  std::size_t first_piece_ = 0;
  std::size_t line_count_ = 0;
  std::vector<int> columns_;
  Passage last_link_;
  Layout layout_;
};

}  // namespace

Layout LayOut(const Topic& topic, os::TextDevice& device, int width_px, int margin_px) {
  return Composer(topic, device, width_px, margin_px).Compose();
}

}  // namespace qdix::help_viewer
