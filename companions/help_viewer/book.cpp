#include "help_viewer/book.h"

#include "help_viewer/block_lines.h"
#include "help_viewer/inline_marks.h"
#include "help_viewer/numbers.h"
#include "help_viewer/stream_lines.h"

namespace qdix::help_viewer {

namespace {

Block Titled(BlockKind kind, const std::string& characters, const std::string& label = {},
             std::int32_t link = kNoLink) {
  Text text{.characters = characters};
  if (!characters.empty()) text.runs.push_back({.link = link});
  Block block{.kind = kind, .label = label};
  block.cells.push_back(std::move(text));
  return block;
}

}  // namespace

Book::Book(std::string_view stream) {
  std::string_view rest = stream;
  // The topic whose body is being read; null at first and after a malformed heading.
  Entry* open = nullptr;
  while (!rest.empty()) {
    const std::string_view line = TakeNextLine(rest);
    if (line.empty()) continue;
    if (line.front() == kSectionLine) {
      sections_.push_back(ReadMarkedText(line.substr(1)).characters);
      open = nullptr;
    } else if (line.front() == kTopicLine) {
      open = AddTopic(line.substr(1), rest);
    } else if (open != nullptr) {
      open->body = {open->body.data(), static_cast<std::size_t>(rest.data() - open->body.data())};
    }
  }
}

/// Returns null for a heading without a number, or with the number of an earlier topic.
Book::Entry* Book::AddTopic(std::string_view heading, std::string_view rest) {
  const auto number = ParseNumber(TakeField(heading));
  if (!number.has_value() || IndexOf(*number) != kContentsPage) return nullptr;
  entries_.push_back({.number = *number,
                      .title = ReadMarkedText(heading).characters,
                      .section = static_cast<int>(sections_.size()) - 1,
                      .body = rest.substr(0, 0)});
  return &entries_.back();
}

int Book::IndexOf(std::int32_t number) const {
  for (int index = 0; index < Count(); ++index) {
    if (entries_[static_cast<std::size_t>(index)].number == number) return index;
  }
  return kContentsPage;
}

Topic Book::Read(int index) const {
  if (index < 0 || index >= Count()) return ContentsPage();
  const Entry& entry = entries_[static_cast<std::size_t>(index)];
  Topic topic;
  topic.blocks.push_back(Titled(BlockKind::kTitle, entry.title));
  std::string_view rest = entry.body;
  while (!rest.empty()) {
    std::optional<Block> block = ReadBlock(TakeNextLine(rest));
    if (!block.has_value()) continue;
    for (Text& text : block->cells) CutDeadLinks(text);
    topic.blocks.push_back(std::move(*block));
  }
  return topic;
}

void Book::CutDeadLinks(Text& text) const {
  for (Run& run : text.runs) {
    if (run.link != kNoLink && IndexOf(run.link) == kContentsPage) run.link = kNoLink;
  }
}

Topic Book::ContentsPage() const {
  Topic page;
  page.blocks.push_back(Titled(BlockKind::kTitle, "Contents"));
  int section = -1;
  for (const Entry& entry : entries_) {
    if (entry.section != section) {
      section = entry.section;
      page.blocks.push_back(Titled(BlockKind::kHeading, sections_[static_cast<std::size_t>(section)]));
    }
    page.blocks.push_back(Titled(BlockKind::kBullet, entry.title, kBulletSign, entry.number));
  }
  return page;
}

}  // namespace qdix::help_viewer
