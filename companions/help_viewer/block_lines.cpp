#include "help_viewer/block_lines.h"

#include "base/numbers.h"
#include "help_viewer/inline_marks.h"
#include "help_viewer/numbers.h"
#include "help_viewer/stream_lines.h"

namespace qdix::help_viewer {

namespace {

Block OneText(BlockKind kind, std::string_view text, const char* label = "") {
  Block block{.kind = kind, .label = label};
  block.cells.push_back(ReadMarkedText(text));
  return block;
}

std::optional<Block> Step(std::string_view text) {
  const auto number = ParseNumber(TakeField(text));
  if (!number.has_value()) return std::nullopt;
  return OneText(BlockKind::kStep, text, (base::TextOf(*number) + ".").c_str());
}

Block Row(BlockKind kind, std::string_view text) {
  Block block{.kind = kind};
  do {
    block.cells.push_back(ReadMarkedText(TakeField(text)));
  } while (!text.empty() && block.cells.size() < kMaxCells);
  return block;
}

}  // namespace

std::optional<Block> ReadBlock(std::string_view line) {
  if (line.empty()) return std::nullopt;
  const std::string_view text = line.substr(1);
  switch (line.front()) {
    case 'H':
      return OneText(BlockKind::kHeading, text);
    case 'P':
      return OneText(BlockKind::kParagraph, text);
    case 'B':
      return OneText(BlockKind::kBullet, text, kBulletSign);
    case 'N':
      return Step(text);
    case 'T':
      return Row(BlockKind::kHeaderRow, text);
    case 'R':
      return Row(BlockKind::kRow, text);
    case 'C':
      return OneText(BlockKind::kFixed, text);
    default:
      return std::nullopt;
  }
}

}  // namespace qdix::help_viewer
