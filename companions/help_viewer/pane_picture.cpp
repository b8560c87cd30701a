#include "help_viewer/pane_picture.h"

#include <algorithm>

namespace qdix::help_viewer {

namespace {

class Painter {
 public:
  Painter(os::TextDevice& device, const View& view, const Palette& palette, const Passage* marked)
      : device_(device), view_(view), palette_(palette), marked_(marked) {}

  void Draw(const Piece& piece) const {
    const std::uint32_t colour = piece.link >= 0 ? palette_.link : palette_.text;
    device_.TextOutA(Across(piece.left), Down(piece.top), piece.look, colour, piece.characters);
    if (marked_ != nullptr) DrawMark(piece);
  }

  void Draw(const Rule& rule) const {
    device_.FillRect(Across(rule.left), Down(rule.top), rule.width, 1, palette_.text);
  }

  [[nodiscard]] bool Shows(int top, int height) const {
    return top < view_.end_px && top + height > view_.first_px;
  }

 private:
  [[nodiscard]] int Across(int left) const { return left + view_.left_px; }
  [[nodiscard]] int Down(int top) const { return top - view_.first_px + view_.top_px; }

  /// Draws the marked characters again, on their own background.
  void DrawMark(const Piece& piece) const {
    const Passage& source = piece.source;
    if (source.block != marked_->block || source.cell != marked_->cell) return;
    const std::size_t begin = std::max(source.begin, marked_->begin);
    const std::size_t end = std::min(source.begin + source.length, marked_->begin + marked_->length);
    if (begin >= end) return;
    const std::string_view before = piece.characters.substr(0, begin - source.begin);
    const std::string_view marked = piece.characters.substr(begin - source.begin, end - begin);
    const int left = Across(piece.left) + device_.GetTextExtentPoint32A(piece.look, before);
    device_.FillRect(left, Down(piece.top), device_.GetTextExtentPoint32A(piece.look, marked), piece.height,
                     palette_.marked_background);
    device_.TextOutA(left, Down(piece.top), piece.look, palette_.marked_text, marked);
  }

  os::TextDevice& device_;
  const View& view_;
  const Palette& palette_;
  const Passage* marked_;
};

}  // namespace

void DrawLayout(os::TextDevice& device, const Layout& layout, const View& view, const Palette& palette,
                const Passage* marked) {
  const Painter painter(device, view, palette, marked);
  for (const Piece& piece : layout.pieces) {
    if (painter.Shows(piece.top, piece.height)) painter.Draw(piece);
  }
  for (const Rule& rule : layout.rules) {
    if (painter.Shows(rule.top, 1)) painter.Draw(rule);
  }
}

}  // namespace qdix::help_viewer
