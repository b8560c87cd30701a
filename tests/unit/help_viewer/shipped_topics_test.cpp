// The topics as built: the packed stream equals the original, and every bit of it is understood.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "help_viewer/block_lines.h"
#include "help_viewer/packed_stream.h"
#include "help_viewer/stream_lines.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

std::string BytesOf(const char* path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

class ShippedTopics : public testing::Test {
 protected:
  const std::string stream = BytesOf(QDIX_TOPIC_STREAM);
  const help_viewer::Book book{stream};
};

TEST_F(ShippedTopics, PackedStreamIsTheStream) {
  const std::string packed = BytesOf(QDIX_PACKED_TOPICS);
  EXPECT_EQ(help_viewer::Unpack(packed), stream);
  EXPECT_LT(packed.size(), stream.size() * 2 / 3);
}

TEST_F(ShippedTopics, EveryNumberUsedByTheMainProgramHasATopic) {
  for (const int number : {0, 4, 5, 6, 7, 8, 9, 10, 11}) {
    EXPECT_NE(book.IndexOf(number), help_viewer::kContentsPage) << number;
  }
}

TEST_F(ShippedTopics, NoLineIsSkipped) {
  std::string_view rest = stream;
  int topics = 0;
  while (!rest.empty()) {
    const std::string_view line = help_viewer::TakeNextLine(rest);
    ASSERT_FALSE(line.empty());
    if (line.front() == help_viewer::kTopicLine) ++topics;
    const bool is_heading =
        line.front() == help_viewer::kTopicLine || line.front() == help_viewer::kSectionLine;
    const bool is_picture = line.front() == 'I';
    EXPECT_TRUE(is_heading || is_picture || help_viewer::ReadBlock(line).has_value()) << line;
  }
  EXPECT_EQ(book.Count(), topics);
  EXPECT_FALSE(book.Sections().empty());
}

TEST_F(ShippedTopics, EveryLinkLeadsToATopic) {
  const auto links_written = std::count(stream.begin(), stream.end(), '\x03');
  std::ptrdiff_t links_read = 0;
  for (int index = 0; index < book.Count(); ++index) {
    for (const help_viewer::Block& block : book.Read(index).blocks) {
      for (const help_viewer::Text& text : block.cells) {
        links_read += std::count_if(text.runs.begin(), text.runs.end(),
                                    [](const auto& run) { return run.link != help_viewer::kNoLink; });
      }
    }
  }
  EXPECT_EQ(links_read, links_written);
}

}  // namespace
}  // namespace qdix::tests
