// Positions of the pieces of a topic. Letters of the body are 8 pixels wide and their lines 16 high; bold
// letters are 9 wide.
#include "help_viewer/layout.h"

#include <gtest/gtest.h>

#include "help_viewer/book.h"
#include "os/simulated/simulated_text_device.h"

namespace qdix::tests {
namespace {

using help_viewer::Layout;
using help_viewer::Line;
using help_viewer::Piece;

class HelpLayout : public testing::Test {
 protected:
  const Layout& LayOut(const std::string& body, int width_px, int margin_px = 0) {
    stream_ = "@1\tT\n" + body + "@2\tTwo\n@3\tThree\n";
    topic_ = help_viewer::Book(stream_).Read(0);
    layout_ = help_viewer::LayOut(topic_, device_, width_px, margin_px);
    return layout_;
  }
  /// Returns the texts of the lines below the title; the pieces of a line are joined.
  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines(layout_.lines.size());
    for (const Piece& piece : layout_.pieces) lines[piece.line] += piece.characters;
    lines.erase(lines.begin());
    return lines;
  }
  [[nodiscard]] const Piece& PieceOf(const std::string& characters) const {
    for (const Piece& piece : layout_.pieces) {
      if (piece.characters == characters) return piece;
    }
    ADD_FAILURE() << "no piece " << characters;
    return layout_.pieces.front();
  }

  os::simulated::SimulatedTextDevice device_;
  std::string stream_;
  help_viewer::Topic topic_;
  Layout layout_;
};

using Texts = std::vector<std::string>;

TEST_F(HelpLayout, ParagraphIsWrappedAtBlanks) {
  LayOut("Paaa bbb cc dddd\n", 7 * 8);
  EXPECT_EQ(Lines(), (Texts{"aaa bbb", "cc dddd"}));
  LayOut("Paaa bbb cc dddd\n", 7 * 8 - 1);
  EXPECT_EQ(Lines(), (Texts{"aaa", "bbb cc", "dddd"}));
}

TEST_F(HelpLayout, MarginIsKeptOnBothSides) {
  LayOut("Paaa bbb cc dddd\n", 10 + 7 * 8 + 10, 10);
  EXPECT_EQ(Lines(), (Texts{"aaa bbb", "cc dddd"}));
  LayOut("Paaa bbb cc dddd\n", 10 + 7 * 8 + 10 - 1, 10);
  EXPECT_EQ(Lines(), (Texts{"aaa", "bbb cc", "dddd"}));
}

TEST_F(HelpLayout, BlanksAroundABreakBelongToNoLine) {
  LayOut("P  aaa   bbb  \n", 5 * 8);
  EXPECT_EQ(Lines(), (Texts{"aaa", "bbb"}));
}

TEST_F(HelpLayout, WordThatIsTooWideIsBroken) {
  LayOut("Pa abcdefghij b\n", 4 * 8);
  EXPECT_EQ(Lines(), (Texts{"a", "abcd", "efgh", "ij b"}));
  LayOut("Pabc\n", 1);
  EXPECT_EQ(Lines(), (Texts{"a", "b", "c"}));
}

TEST_F(HelpLayout, WordOfSeveralRunsIsNotBrokenBetweenThem) {
  LayOut(
      "Paaa b\x01"
      "b\x01"
      "b\n",
      7 * 8);
  EXPECT_EQ(Lines(), (Texts{"aaa", "bbb"})) << "the bold letter makes the word a pixel wider than the line";
  EXPECT_EQ(layout_.pieces.size(), 5U);
}

TEST_F(HelpLayout, PiecesOfALineFollowEachOtherOnOneBaseLine) {
  LayOut(
      "Paa \x01"
      "bb\x01 cc\n",
      400, 10);
  EXPECT_EQ(PieceOf("aa ").left, 10);
  EXPECT_EQ(PieceOf("bb").left, 10 + 3 * 8);
  EXPECT_TRUE(PieceOf("bb").look.is_bold);
  EXPECT_EQ(PieceOf(" cc").left, 10 + 3 * 8 + 2 * 9);
  EXPECT_EQ(PieceOf("aa ").top, PieceOf("bb").top);
}

TEST_F(HelpLayout, LinesDoNotOverlapAndFillTheHeight) {
  LayOut("Hh\nPp q r s t u v w\nBb\nN1\tn\nTa\tb\nRc\td\nCx\nCy\nPp\n", 60, 5);
  int bottom = 5;
  for (const Line& line : layout_.lines) {
    EXPECT_GE(line.top, bottom);
    bottom = line.top + line.height;
  }
  EXPECT_EQ(layout_.height, bottom + 5);
}

TEST_F(HelpLayout, SpaceBetweenBlocksIsInQuartersOfABodyLine) {
  // Gaps from one block to the next; the first block is the title.
  const auto gaps_px = [this](const std::string& body) {
    LayOut(body, 400);
    std::vector<int> gaps;
    for (std::size_t line = 1; line < layout_.lines.size(); ++line) {
      const Line& above = layout_.lines[line - 1];
      gaps.push_back(layout_.lines[line].top - above.top - above.height);
    }
    return gaps;
  };
  using Gaps = std::vector<int>;
  EXPECT_EQ(gaps_px("Pp\nPp\nHh\nPp\n"), (Gaps{12, 8, 16, 4}));
  EXPECT_EQ(gaps_px("Hh\nHh\nBb\n"), (Gaps{16, 16, 4}));
  EXPECT_EQ(gaps_px("Bb\nBb\nN1\tn\nN2\tn\nPp\nBb\n"), (Gaps{12, 4, 4, 4, 8, 8}));
  EXPECT_EQ(gaps_px("Cc\nCc\nPp\nCc\n"), (Gaps{12, 0, 8, 8}));
  EXPECT_EQ(gaps_px("Ra\tb\nRc\td\nPp\nRe\tf\nBb\n"), (Gaps{12, 4, 8, 8, 8}));
  EXPECT_EQ(gaps_px("Ta\tb\nRc\td\n"), (Gaps{12, 5})) << "this includes the one-pixel rule";
}

TEST_F(HelpLayout, EachKindHasItsLook) {
  LayOut("Hhead\nPpara\nCfixed\nTcell\tc\nRrow\tr\n", 400);
  const auto points_of = [this](const char* text) { return PieceOf(text).look.points; };
  EXPECT_EQ(points_of("T"), 14);
  EXPECT_EQ(points_of("head"), 10);
  EXPECT_EQ(points_of("para"), 8);
  EXPECT_EQ(points_of("fixed"), 9);
  EXPECT_EQ(points_of("cell"), 8);
  for (const char* const bold : {"T", "head", "cell"}) EXPECT_TRUE(PieceOf(bold).look.is_bold) << bold;
  for (const char* const plain : {"para", "fixed", "row"}) EXPECT_FALSE(PieceOf(plain).look.is_bold) << plain;
}

TEST_F(HelpLayout, BulletsAndStepsAreInTheMarginOfTheirText) {
  LayOut("Baaa bbb\nN12\tccc\n", 32 + 3 * 8);
  EXPECT_EQ(Lines(), (Texts{"\x95"
                            "aaa",
                            "bbb", "12.ccc"}));
  EXPECT_EQ(PieceOf("aaa").left, 32);
  EXPECT_EQ(PieceOf("bbb").left, 32);
  EXPECT_EQ(PieceOf("ccc").left, 32);
  EXPECT_EQ(PieceOf("\x95").left + PieceOf("\x95").width, 24) << "half a line before the text";
  EXPECT_EQ(PieceOf("12.").left + PieceOf("12.").width, PieceOf("\x95").left + PieceOf("\x95").width);
  EXPECT_EQ(PieceOf("12.").source.length, 0U) << "a label is not text of the topic";
}

TEST_F(HelpLayout, ColumnIsAtLeastAPixelWide) {
  LayOut("Rab\t\tcd\tef\n", 1);
  EXPECT_EQ(PieceOf("a").left, 0);
  EXPECT_EQ(PieceOf("c").left, 2 * (1 + 16)) << "it follows an empty column";
  EXPECT_EQ(PieceOf("e").left, 3 * (1 + 16));
}

TEST_F(HelpLayout, WideLabelBeginsAtTheMargin) {
  LayOut("N12\tx\nN12345\ty\n", 400, 5);
  EXPECT_EQ(PieceOf("12.").left, 5);
  EXPECT_EQ(PieceOf("12345.").left, 5);
  EXPECT_EQ(PieceOf("x").left, 5 + 32);
  EXPECT_EQ(PieceOf("y").left, 5 + 32);
}

TEST_F(HelpLayout, FixedLinesAreNotWrappedAndHaveNoGaps) {
  LayOut("Caaa bbb ccc ddd\nCe\n", 40);
  EXPECT_EQ(Lines(), (Texts{"aaa bbb ccc ddd", "e"}));
  EXPECT_TRUE(PieceOf("e").look.is_fixed);
  EXPECT_EQ(layout_.lines[2].top, layout_.lines[1].top + layout_.lines[1].height);
}

TEST_F(HelpLayout, ColumnsAreAsWideAsTheirTextsIfThereIsRoom) {
  LayOut("Tab\tc\nRd\tefg\n", 400);
  EXPECT_EQ(PieceOf("c").left, 2 * 9 + 16);
  EXPECT_EQ(PieceOf("efg").left, 2 * 9 + 16);
  EXPECT_EQ(PieceOf("ab").top, PieceOf("c").top);
  EXPECT_TRUE(PieceOf("ab").look.is_bold);
  ASSERT_EQ(layout_.rules.size(), 1U);
  EXPECT_GE(layout_.rules[0].top, PieceOf("ab").top + PieceOf("ab").height);
  EXPECT_LT(layout_.rules[0].top, PieceOf("efg").top);
}

TEST_F(HelpLayout, WideColumnIsWrappedAndNarrowOnesKeepTheirWidth) {
  // 160 pixels minus two gaps of 16: the narrow columns take 8 each and leave 112, which is 14 letters.
  LayOut("Ra\taaaa bbbb cccc dddd\tz\nRb\te\tf\n", 160);
  EXPECT_EQ(Lines(), (Texts{"aaaaa bbbb ccccz", "dddd", "bef"}));
  EXPECT_EQ(PieceOf("z").left, 8 + 16 + 112 + 16);
  EXPECT_EQ(PieceOf("dddd").left, 8 + 16);
  EXPECT_EQ(PieceOf("a").top, PieceOf("z").top);
}

TEST_F(HelpLayout, LinkOfSeveralPiecesIsOneLink) {
  LayOut(
      "Px \x03"
      "2\x1F"
      "aaa bbb\x04 \x03"
      "3\x1F"
      "c\x04\n",
      5 * 8);
  EXPECT_EQ(Lines(), (Texts{"x aaa", "bbb c"}));
  ASSERT_EQ(layout_.links.size(), 2U);
  EXPECT_EQ(layout_.links[0].number, 2);
  EXPECT_EQ(layout_.links[0].height, 32);
  EXPECT_EQ(layout_.links[1].number, 3);
  EXPECT_EQ(PieceOf("aaa").link, 0);
  EXPECT_EQ(PieceOf("bbb").link, 0);
  EXPECT_EQ(PieceOf("c").link, 1);
  EXPECT_TRUE(PieceOf("aaa").look.is_underlined);
  EXPECT_FALSE(PieceOf("x ").look.is_underlined);
}

TEST_F(HelpLayout, PiecesKnowTheirSource) {
  LayOut("Ra\tbb cc\n", 16 + 8 + 2 * 8);
  EXPECT_EQ(PieceOf("cc").source, (help_viewer::Passage{1, 1, 3, 2}));
}

TEST_F(HelpLayout, AnyWidthIsPossible) {
  for (const int width_px : {-100, 0, 1, 7, 33}) {
    LayOut(
        "Hlong heading\nBa \x03"
        "2\x1Flink\x04\nTa\tb\tc\nRd\te\tf\nCx\n",
        width_px, 8);
    EXPECT_GT(layout_.height, 0);
    EXPECT_EQ(layout_.links.size(), 1U) << width_px;
  }
}

}  // namespace
}  // namespace qdix::tests
