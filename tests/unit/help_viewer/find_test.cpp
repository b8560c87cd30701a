// Finding a word: the list follows the typed text, and each Enter goes to the next occurrence.
#include <gtest/gtest.h>

#include "help_viewer/search.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

using Rows = std::vector<std::string>;

class HelpFind : public testing::Test {
 protected:
  HelpFind() {
    rig.Start("4");
    rig.Screen().cmdFind.Press();
  }

  HelpRig rig;
};

TEST_F(HelpFind, ButtonReplacesTheContentsWithTheField) {
  help_viewer::HelpScreen& screen = rig.Screen();
  EXPECT_FALSE(screen.lstContents.Visible());
  EXPECT_TRUE(screen.lblWord.Visible());
  EXPECT_TRUE(screen.txtWord.HasFocus());
  EXPECT_TRUE(screen.lstFound.Visible());
  EXPECT_EQ(rig.Title(), "Memory") << "the topic stays open";
  screen.cmdContents.Press();
  EXPECT_TRUE(screen.lstContents.Visible());
  EXPECT_TRUE(screen.lstContents.HasFocus());
  EXPECT_FALSE(screen.lblWord.Visible());
  EXPECT_FALSE(screen.txtWord.Visible());
  EXPECT_FALSE(screen.lblFound.Visible());
  EXPECT_FALSE(screen.lstFound.Visible());
}

TEST_F(HelpFind, PreviousWordIsSelectedForReplacement) {
  rig.TypeWord("press");
  rig.Screen().cmdContents.Press();
  rig.Screen().cmdFind.Press();
  EXPECT_EQ(rig.Screen().txtWord.SelectionLength(), 5);
}

TEST_F(HelpFind, ListFollowsTheWord) {
  EXPECT_EQ(rig.Screen().lblFound.Caption(), "Topics found:");
  rig.TypeWord("PRESS");
  EXPECT_EQ(HelpRig::RowsOf(rig.Screen().lstFound), (Rows{"Welcome", "Memory"}));
  EXPECT_EQ(rig.Screen().lblFound.Caption(), "Topics found: 2");
  rig.TypeWord(" pressure ");
  EXPECT_EQ(HelpRig::RowsOf(rig.Screen().lstFound), Rows{});
  EXPECT_EQ(rig.Screen().lblFound.Caption(), "Topics found: none");
  rig.TypeWord("");
  EXPECT_EQ(rig.Screen().lblFound.Caption(), "Topics found:");
}

TEST_F(HelpFind, TitlesRowsAndFixedLinesAreSearched) {
  for (const auto& [word, title] : {std::pair{"long one", "A Long One"},
                                    {"100 kb", "Files"},
                                    {"[section]", "About"},
                                    {"sizes", "Files"},
                                    {"caf\xC9", "A Long One"}}) {
    rig.TypeWord(word);
    EXPECT_EQ(HelpRig::RowsOf(rig.Screen().lstFound), Rows{title}) << word;
  }
}

TEST_F(HelpFind, WordIsFoundAcrossRunsButNotAcrossTexts) {
  rig.TypeWord("and bold words");
  EXPECT_EQ(rig.Screen().lstFound.Count(), 1);
  rig.TypeWord("QDIX.exe100");
  EXPECT_EQ(rig.Screen().lstFound.Count(), 0);
}

TEST_F(HelpFind, EnterInTheFieldOpensTheFirstTopicAtTheWord) {
  rig.TypeWord("files");
  rig.Screen().txtWord.PressEnter();
  EXPECT_EQ(rig.Title(), "Welcome");
  ASSERT_NE(rig.Pane().Marked(), nullptr);
  EXPECT_EQ(rig.Pane().MarkedWord(), "files");
  EXPECT_TRUE(rig.Screen().lstFound.HasFocus());
  EXPECT_EQ(rig.Screen().lstFound.SelectedIndex(), 0);
}

TEST_F(HelpFind, EnterWithoutAHitDoesNothing) {
  rig.TypeWord("nowhere");
  rig.Screen().txtWord.PressEnter();
  EXPECT_EQ(rig.Title(), "Memory");
  EXPECT_TRUE(rig.Screen().txtWord.HasFocus());
}

TEST_F(HelpFind, EnterAndDoubleClickGoToTheNextOccurrence) {
  rig.TypeWord("caf\xE9");
  rig.Screen().lstFound.DoubleClick(0);
  EXPECT_EQ(rig.Title(), "A Long One");
  EXPECT_EQ(rig.Pane().Marked()->block, 1U);
  rig.Screen().lstFound.PressEnter();
  EXPECT_EQ(rig.Pane().Marked()->block, 2U);
  rig.Screen().lstFound.DoubleClick(0);
  EXPECT_EQ(rig.Pane().Marked()->block, 3U);
  EXPECT_TRUE(rig.Screen().cmdBack.Enabled());
  rig.Screen().cmdBack.Press();
  EXPECT_EQ(rig.Title(), "Memory") << "all occurrences in one topic are one step";
}

TEST_F(HelpFind, NextOccurrenceInViewLeavesTheTopicWhereItIs) {
  rig.TypeWord("in it");
  rig.Screen().lstFound.DoubleClick(0);
  rig.Pane().ScrollTo(1);
  ASSERT_EQ(rig.Pane().ScrollPosition(), 1);
  rig.Screen().lstFound.DoubleClick(0);
  EXPECT_EQ(rig.Pane().Marked()->block, 2U);
  EXPECT_EQ(rig.Pane().ScrollPosition(), 1);
}

TEST_F(HelpFind, AnotherWordInTheSameTopicStartsAtItsFirstOccurrence) {
  rig.TypeWord("in it");
  rig.Screen().lstFound.DoubleClick(0);
  rig.Screen().lstFound.DoubleClick(0);
  EXPECT_EQ(rig.Pane().Marked()->block, 2U);
  rig.TypeWord("paragraph");
  rig.Screen().lstFound.DoubleClick(0);
  EXPECT_EQ(rig.Pane().Marked()->block, 1U);
}

TEST_F(HelpFind, AnotherTopicHasNoMark) {
  rig.TypeWord("press");
  rig.Screen().lstFound.DoubleClick(0);
  rig.Pane().Follow(0);
  EXPECT_EQ(rig.Pane().Marked(), nullptr);
}

TEST_F(HelpFind, TopicShownAgainIsMarkedAgain) {
  rig.TypeWord("press");
  rig.Screen().lstFound.DoubleClick(0);
  ASSERT_EQ(rig.Title(), "Welcome");
  rig.Pane().Follow(0);
  rig.Screen().cmdBack.Press();
  ASSERT_EQ(rig.Title(), "Welcome");
  EXPECT_EQ(rig.Pane().Marked(), nullptr);
  rig.Screen().lstFound.DoubleClick(0);
  EXPECT_NE(rig.Pane().Marked(), nullptr);
}

TEST_F(HelpFind, DoubleClickBelowTheLastRowOpensNothing) {
  rig.TypeWord("welcome");
  rig.Screen().lstFound.DoubleClick(ui::ListBox::kNoSelection);
  EXPECT_EQ(rig.Title(), "Memory");
}

TEST(HelpSearch, CapitalsOfTheCodePageMatchTheirSmallLetters) {
  const help_viewer::Book book("@1\tOne\nP\xC4pfel \xD7 \xF7 \xDF\n");
  const help_viewer::Topic topic = book.Read(0);
  EXPECT_EQ(FindInTopic(topic, "\xE4PFEL").size(), 1U);
  EXPECT_EQ(FindInTopic(topic, "\xF7").size(), 1U) << "multiplication is not division";
  EXPECT_EQ(FindInTopic(topic, "\xFF").size(), 0U) << "sharp s has no capital here";
  EXPECT_EQ(FindInTopic(topic, "").size(), 0U);
}

bool IsCapital(int code) {
  return (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7);
}

TEST(HelpSearch, EachCapitalFindsItsSmallLetterAndNothingElse) {
  constexpr int kCodes = 256;
  constexpr int kFromCapitalToSmall = 32;
  for (int code = 1; code < kCodes; ++code) {
    help_viewer::Topic topic;
    topic.blocks.push_back({.cells = {{.characters = {static_cast<char>(code)}}}});
    for (int other = 1; other < kCodes; ++other) {
      const bool same = code == other || (IsCapital(code) && other == code + kFromCapitalToSmall) ||
                        (IsCapital(other) && code == other + kFromCapitalToSmall);
      const std::string word(1, static_cast<char>(other));
      ASSERT_EQ(FindInTopic(topic, word).size(), same ? 1U : 0U) << code << " and " << other;
    }
  }
}

}  // namespace
}  // namespace qdix::tests
