#include "help_viewer/plain_text.h"

#include "base/text.h"

namespace qdix::help_viewer {

namespace {

/// True for lines of related kinds, which have no blank line between them.
bool IsClose(BlockKind above, BlockKind below) {
  const auto is_item = [](BlockKind kind) { return kind == BlockKind::kBullet || kind == BlockKind::kStep; };
  const auto is_row = [](BlockKind kind) { return kind == BlockKind::kHeaderRow || kind == BlockKind::kRow; };
  return (is_item(above) && is_item(below)) || (is_row(above) && is_row(below)) ||
         (above == BlockKind::kFixed && below == BlockKind::kFixed);
}

}  // namespace

std::string PlainText(const Topic& topic) {
  std::string plain;
  for (std::size_t index = 0; index < topic.blocks.size(); ++index) {
    const Block& block = topic.blocks[index];
    if (index != 0 && !IsClose(topic.blocks[index - 1].kind, block.kind)) plain += base::kLineBreak;
    if (block.kind == BlockKind::kBullet) plain += "- ";
    if (block.kind == BlockKind::kStep) plain += block.label + " ";
    for (std::size_t cell = 0; cell < block.cells.size(); ++cell) {
      if (cell != 0) plain += '\t';
      plain += block.cells[cell].characters;
    }
    plain += base::kLineBreak;
  }
  return plain;
}

}  // namespace qdix::help_viewer
