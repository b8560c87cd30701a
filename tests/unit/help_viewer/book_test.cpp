// The topic stream as a book: well-formed lines are read, malformed ones are skipped.
#include "help_viewer/book.h"

#include <gtest/gtest.h>

#include "help_viewer/block_lines.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

using help_viewer::Block;
using help_viewer::BlockKind;
using help_viewer::Book;
using help_viewer::kContentsPage;
using help_viewer::kNoLink;
using help_viewer::Text;
using help_viewer::Topic;

/// Returns the only text of a topic with one paragraph.
Text Paragraph(const std::string& marked) {
  const std::string stream = "@1\tOne\nP" + marked + "\n@2\tTwo\n";
  return Book(stream).Read(0).blocks.at(1).cells.front();
}

std::vector<std::string> TitlesOf(const Book& book) {
  std::vector<std::string> titles;
  for (const Book::Entry& entry : book.Entries()) titles.push_back(entry.title);
  return titles;
}

TEST(HelpBook, TopicsHaveNumberTitleAndSectionInTheOrderOfTheStream) {
  const Book book(kBook);
  EXPECT_EQ(book.Sections(), (std::vector<std::string>{"First Steps", "The Rest"}));
  EXPECT_EQ(TitlesOf(book), (std::vector<std::string>{"Welcome", "Memory", "Files", "A Long One", "About"}));
  EXPECT_EQ(book.Entries()[1].section, 0);
  EXPECT_EQ(book.Entries()[2].section, 1);
  EXPECT_EQ(book.IndexOf(0), 0);
  EXPECT_EQ(book.IndexOf(7), 3);
  EXPECT_EQ(book.IndexOf(1), kContentsPage);
}

TEST(HelpBook, EachKindOfLineIsABlock) {
  const std::string stream = "@3\tT\nHh\nPp\nBb\nN12\tn\nTa\tb\nRc\td\te\nCx  y\nIF.BMP\tpicture\n";
  const Topic topic = Book(stream).Read(0);
  const std::vector<BlockKind> kinds{BlockKind::kTitle,  BlockKind::kHeading, BlockKind::kParagraph,
                                     BlockKind::kBullet, BlockKind::kStep,    BlockKind::kHeaderRow,
                                     BlockKind::kRow,    BlockKind::kFixed};
  ASSERT_EQ(topic.blocks.size(), kinds.size()) << "a picture makes no block";
  for (std::size_t i = 0; i < kinds.size(); ++i) EXPECT_EQ(topic.blocks[i].kind, kinds[i]) << i;
  EXPECT_EQ(topic.blocks[0].cells[0].characters, "T");
  EXPECT_EQ(topic.blocks[3].label, "\x95");
  EXPECT_EQ(topic.blocks[4].label, "12.");
  EXPECT_EQ(topic.blocks[5].cells.size(), 2U);
  EXPECT_EQ(topic.blocks[6].cells.size(), 3U);
  EXPECT_EQ(topic.blocks[6].cells[2].characters, "e");
  EXPECT_EQ(topic.blocks[7].cells[0].characters, "x  y");
}

TEST(HelpBook, MarksMakeRunsAndAreNotCharacters) {
  const Text text = Paragraph(
      "a \x01"
      "b\x01 c \x02"
      "d\x02 \x03"
      "2\x1F"
      "e f\x04 g");
  EXPECT_EQ(text.characters, "a b c d e f g");
  ASSERT_EQ(text.runs.size(), 7U);
  EXPECT_FALSE(text.runs[0].is_bold);
  EXPECT_EQ(text.runs[1].begin, 2U);
  EXPECT_TRUE(text.runs[1].is_bold);
  EXPECT_TRUE(text.runs[3].is_bold) << "typed input looks bold";
  EXPECT_EQ(text.runs[5].begin, 8U);
  EXPECT_EQ(text.runs[5].link, 2);
  EXPECT_EQ(text.runs[6].link, kNoLink);
}

TEST(HelpBook, LinkHasTheSameLookThroughout) {
  const Text text = Paragraph(
      "\x01"
      "bold \x03"
      "2\x1Fli\x02nk\x04!");
  ASSERT_EQ(text.runs.size(), 3U);
  EXPECT_FALSE(text.runs[1].is_bold);
  EXPECT_EQ(text.runs[1].link, 2);
  EXPECT_TRUE(text.runs[2].is_bold) << "the earlier bold continues after the link";
}

TEST(HelpBook, DeadAndIncompleteLinksArePlainText) {
  for (const char* const marked : {"\x03"
                                   "99\x1Fx\x04",
                                   "\x03"
                                   "2\x1Fx",
                                   "\x03\x1Fx\x04", "\x03-2\x1Fx\x04",
                                   "\x03"
                                   "2x\x04",
                                   "\x03"
                                   "1234567890\x1Fx\x04",
                                   "x\x04\x1F"}) {
    for (const help_viewer::Run& run : Paragraph(marked).runs) EXPECT_EQ(run.link, kNoLink) << marked;
    EXPECT_NE(Paragraph(marked).characters.find('x'), std::string::npos) << marked;
  }
}

TEST(HelpBook, OtherControlCharactersAreLeftOut) {
  EXPECT_EQ(Paragraph("a\rb\tc\x05"
                      "d\x7F\xE9")
                .characters,
            "abcd\x7F\xE9");
}

TEST(HelpBook, MalformedLinesAreSkipped) {
  const std::string stream =
      "\n\nPbefore any topic\nXunknown\n@x\tNo number\nPlost\n@1\tOne\nN\tno number\nNx\tnor "
      "here\nZ\n\nPkept\n"
      "@1\tThe number is taken\nPlost as well\n@2\n";
  const Book book(stream);
  EXPECT_EQ(TitlesOf(book), (std::vector<std::string>{"One", ""}));
  EXPECT_EQ(book.Entries()[0].section, -1);
  const Topic topic = book.Read(0);
  ASSERT_EQ(topic.blocks.size(), 2U);
  EXPECT_EQ(topic.blocks[1].cells[0].characters, "kept");
  EXPECT_EQ(book.Read(1).blocks.size(), 1U);
}

TEST(HelpBook, LastLineNeedsNoLineBreak) {
  const Topic topic = Book("@1\tOne\nPlast").Read(0);
  ASSERT_EQ(topic.blocks.size(), 2U);
  EXPECT_EQ(topic.blocks[1].cells[0].characters, "last");
}

TEST(HelpBook, RowsHaveALimitedNumberOfCells) {
  const std::string stream = "@1\tOne\nR" + std::string(100, '\t') + "\n";
  EXPECT_EQ(Book(stream).Read(0).blocks.at(1).cells.size(), help_viewer::kMaxCells);
}

TEST(HelpBook, ContentsPageListsAllTopicsAsLinksUnderTheirSections) {
  const Topic page = Book(kBook).Read(kContentsPage);
  std::vector<std::string> texts;
  for (const Block& block : page.blocks) texts.push_back(block.cells.front().characters);
  EXPECT_EQ(texts, (std::vector<std::string>{"Contents", "First Steps", "Welcome", "Memory", "The Rest",
                                             "Files", "A Long One", "About"}));
  EXPECT_EQ(page.blocks[0].kind, BlockKind::kTitle);
  EXPECT_EQ(page.blocks[1].kind, BlockKind::kHeading);
  EXPECT_EQ(page.blocks[2].kind, BlockKind::kBullet);
  EXPECT_EQ(page.blocks[6].cells.front().runs.front().link, 7);
  EXPECT_EQ(Book("").Read(kContentsPage).blocks.size(), 1U);
  EXPECT_EQ(Book("").Read(5).blocks.front().cells.front().characters, "Contents");
}

}  // namespace
}  // namespace qdix::tests
