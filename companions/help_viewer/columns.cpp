#include "help_viewer/columns.h"

#include <algorithm>
#include <numeric>

#include "help_viewer/wrap.h"

namespace qdix::help_viewer {

namespace {

/// Returns the width of each column without wrapping.
std::vector<int> NaturalWidths(const Topic& topic, std::size_t first, os::TextDevice& device) {
  std::vector<int> widths;
  for (std::size_t block = first; block < topic.blocks.size(); ++block) {
    const Block& row = topic.blocks[block];
    if (row.kind != BlockKind::kHeaderRow && row.kind != BlockKind::kRow) break;
    widths.resize(std::max(widths.size(), row.cells.size()), 1);
    for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
      const Text& text = row.cells[cell];
      widths[cell] = std::max(widths[cell], WidthOf(device, row.kind, text, {0, text.characters.size()}));
    }
  }
  return widths;
}

/// Columns narrower than an even share keep their width; the others share the rest evenly. Starts with the
/// narrow columns, because each of them leaves more for the others.
void Share(std::vector<int>& widths, int room_px) {
  std::vector<std::size_t> order(widths.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&widths](std::size_t one, std::size_t other) {
    return widths[one] != widths[other] ? widths[one] < widths[other] : one < other;
  });
  int left = static_cast<int>(order.size());
  for (const std::size_t column : order) {
    widths[column] = std::max(std::min(widths[column], room_px / left), 1);
    room_px -= widths[column];
    --left;
  }
}

}  // namespace

std::vector<int> ColumnsOf(const Topic& topic, std::size_t first, os::TextDevice& device, int width_px,
                           int body_line_px) {
  std::vector<int> widths = NaturalWidths(topic, first, device);
  const int gaps = ColumnGap(body_line_px) * static_cast<int>(widths.size() - 1);
  Share(widths, std::max(width_px - gaps, 1));
  return widths;
}

}  // namespace qdix::help_viewer
