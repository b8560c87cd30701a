// The pane without a window: scrolling, links by keyboard and pointer, and highlighted matches.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/support/form_fixture.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

using help_viewer::TopicPane;
using Scroll = help_viewer::TopicPane::Scroll;

class HelpPane : public testing::Test {
 protected:
  TopicPane& Open(const std::string& topic) {
    rig.Start(topic);
    return rig.Pane();
  }
  [[nodiscard]] int Bottom() { return rig.Pane().TheLayout().height - 200; }

  HelpRig rig;
};

TEST_F(HelpPane, LinesAndPagesAreScrolledWithinTheTopic) {
  TopicPane& pane = Open("7");
  pane.ScrollBy(Scroll::kLineUp);
  EXPECT_EQ(pane.ScrollPosition(), 0);
  pane.ScrollBy(Scroll::kLineDown);
  EXPECT_EQ(pane.ScrollPosition(), 16);
  pane.ScrollBy(Scroll::kPageDown);
  EXPECT_EQ(pane.ScrollPosition(), 16 + 200 - 16) << "one line of the previous page stays visible";
  pane.ScrollBy(Scroll::kPageUp);
  EXPECT_EQ(pane.ScrollPosition(), 16);
  pane.ScrollBy(Scroll::kBottom);
  EXPECT_EQ(pane.ScrollPosition(), Bottom());
  pane.ScrollBy(Scroll::kLineDown);
  EXPECT_EQ(pane.ScrollPosition(), Bottom());
  pane.ScrollLines(-3);
  EXPECT_EQ(pane.ScrollPosition(), Bottom() - 48);
  pane.ScrollBy(Scroll::kTop);
  EXPECT_EQ(pane.ScrollPosition(), 0);
  pane.ScrollTo(1000000);
  EXPECT_EQ(pane.ScrollPosition(), Bottom());
}

TEST_F(HelpPane, ShortTopicDoesNotScroll) {
  TopicPane& pane = Open("4");
  pane.ScrollBy(Scroll::kBottom);
  EXPECT_EQ(pane.ScrollPosition(), 0);
}

TEST_F(HelpPane, NewWidthKeepsTheTopBlockAndNewHeightThePosition) {
  TopicPane& pane = Open("7");
  const auto first_block_in_view = [&pane] {
    const auto& lines = pane.TheLayout().lines;
    return std::find_if(lines.begin(), lines.end(),
                        [&pane](const help_viewer::Line& line) { return line.top >= pane.ScrollPosition(); })
        ->block;
  };
  pane.ScrollTo(400);
  const std::size_t block = first_block_in_view();
  pane.SurfaceChanged(&rig.device, 120, 200);
  EXPECT_EQ(first_block_in_view(), block);
  pane.SurfaceChanged(&rig.device, 300, 200);
  EXPECT_EQ(first_block_in_view(), block);
  const int position = pane.ScrollPosition();
  pane.SurfaceChanged(&rig.device, 300, 150);
  EXPECT_EQ(pane.ScrollPosition(), position);
  pane.SurfaceChanged(&rig.device, 300, 100000);
  EXPECT_EQ(pane.ScrollPosition(), 0);
}

TEST_F(HelpPane, ChangeOfHeightAloneIsReportedToThePeer) {
  TopicPane& pane = Open("7");
  RecordingPeer peer;
  pane.AttachPeer(&peer);
  pane.SurfaceChanged(&rig.device, 300, 150);
  EXPECT_EQ(peer.changes, std::vector<ui::Change>{ui::Change::kValue})
      << "its scroll bar now has longer pages";
}

TEST_F(HelpPane, LineAtTheTopOfTheViewIsThePlaceToReturnTo) {
  TopicPane& pane = Open("7");
  const auto top_of_block = [&pane](std::size_t block) {
    const auto& lines = pane.TheLayout().lines;
    return std::find_if(lines.begin(), lines.end(),
                        [block](const help_viewer::Line& line) { return line.block == block; })
        ->top;
  };
  pane.ScrollTo(top_of_block(9));
  pane.SurfaceChanged(&rig.device, 120, 200);
  EXPECT_EQ(pane.ScrollPosition(), top_of_block(9));
}

TEST_F(HelpPane, NewWidthKeepsTheTopOfTheTopic) {
  constexpr int kMarginPx = 8;
  TopicPane& pane = Open("7");
  pane.SurfaceChanged(&rig.device, 120, 200);
  EXPECT_EQ(pane.ScrollPosition(), 0) << "with the margin above the title";
  pane.ScrollTo(1);
  pane.SurfaceChanged(&rig.device, 300, 200);
  EXPECT_EQ(pane.ScrollPosition(), kMarginPx) << "the title is the first line in view";
}

TEST_F(HelpPane, LosingTheSurfaceGoesBackToTheTop) {
  TopicPane& pane = Open("7");
  pane.ScrollTo(300);
  pane.SurfaceChanged(nullptr, 0, 0);
  EXPECT_EQ(pane.ScrollPosition(), 0);
  pane.SurfaceChanged(&rig.device, 300, 200);
  EXPECT_EQ(pane.ScrollPosition(), 0);
}

TEST_F(HelpPane, LinkEntirelyInViewIsNotScrolledTo) {
  const int height_px = Open("0").TheLayout().links[0].height;
  const int top_px = rig.Pane().TheLayout().links[0].top;
  const auto scrolled_from = [this](int scroll_px, int view_px) {
    TopicPane& pane = Open("0");
    pane.SurfaceChanged(&rig.device, 300, view_px);
    pane.ScrollTo(scroll_px);
    EXPECT_EQ(pane.ScrollPosition(), scroll_px);
    pane.FocusLink(-1);
    pane.FocusNextLink(false);
    EXPECT_EQ(pane.FocusedLink(), 0);
    return pane.ScrollPosition();
  };
  EXPECT_EQ(scrolled_from(0, top_px + height_px), 0);
  EXPECT_EQ(scrolled_from(0, top_px + height_px - 1), 16 + 1) << "it scrolls one line more than needed";
  EXPECT_EQ(scrolled_from(top_px, height_px), top_px);
  EXPECT_EQ(scrolled_from(top_px + 1, height_px), top_px - 16);
}

/// Records position and link at each change.
class PositionReader final : public ui::ControlPeer {
 public:
  void ControlChanged(ui::Control& control, ui::Change /*change*/) override {
    const auto& pane = static_cast<const TopicPane&>(control);
    stands.emplace_back(pane.ScrollPosition(), pane.FocusedLink());
  }
  std::vector<std::pair<int, int>> stands;
};

TEST_F(HelpPane, PeerFindsTheNewPositionAndTheNewLink) {
  using Stands = std::vector<std::pair<int, int>>;
  TopicPane& pane = Open("7");
  PositionReader reader;
  pane.AttachPeer(&reader);
  pane.ScrollTo(48);
  pane.FocusLink(0);
  pane.ScrollTo(48);
  pane.FocusLink(0);
  EXPECT_EQ(reader.stands, (Stands{{48, -1}, {48, 0}}));
  reader.stands.clear();
  pane.Show(help_viewer::Topic(pane.Shown()));
  EXPECT_EQ(reader.stands, (Stands{{0, -1}}));
  pane.ScrollBy(Scroll::kBottom);
  reader.stands.clear();
  pane.SurfaceChanged(&rig.device, 2000, 200);
  for (const auto& [position, link] : reader.stands) EXPECT_LE(position, Bottom());
  EXPECT_FALSE(reader.stands.empty());
}

TEST_F(HelpPane, WithoutASurfaceNothingIsLaidOut) {
  TopicPane& pane = Open("0");
  pane.SurfaceChanged(nullptr, 0, 0);
  EXPECT_TRUE(pane.TheLayout().pieces.empty());
  EXPECT_FALSE(pane.HasNextLink(false));
  pane.ScrollBy(Scroll::kPageDown);
  pane.PressEnter();
  EXPECT_EQ(rig.Title(), "Welcome");
}

TEST_F(HelpPane, TabGoesThroughTheLinksAndThenLeaves) {
  TopicPane& pane = Open("0");
  EXPECT_EQ(pane.FocusedLink(), -1);
  EXPECT_TRUE(pane.HasNextLink(false));
  pane.FocusNextLink(false);
  EXPECT_EQ(pane.FocusedLink(), 0);
  pane.FocusNextLink(false);
  EXPECT_EQ(pane.FocusedLink(), 1);
  EXPECT_FALSE(pane.HasNextLink(false)) << "a dead link is not a link";
  EXPECT_TRUE(pane.HasNextLink(true));
  pane.FocusNextLink(false);
  EXPECT_EQ(pane.FocusedLink(), 1) << "without a further link the last one keeps the focus";
  pane.FocusNextLink(true);
  EXPECT_EQ(pane.FocusedLink(), 0);
  EXPECT_FALSE(pane.HasNextLink(true));
  pane.FocusNextLink(true);
  EXPECT_EQ(pane.FocusedLink(), 0);
}

TEST_F(HelpPane, FirstTabTakesTheFirstLinkFromTheViewOnAndScrollsToIt) {
  TopicPane& pane = Open("7");
  EXPECT_TRUE(pane.HasNextLink(false));
  EXPECT_FALSE(pane.HasNextLink(true)) << "no link is in view or above";
  pane.FocusNextLink(false);
  EXPECT_EQ(pane.FocusedLink(), 0);
  EXPECT_EQ(pane.ScrollPosition(), Bottom());
}

TEST_F(HelpPane, LinkThatOnlyTouchesTheViewIsNotInView) {
  constexpr int kHeightPx = 20;
  const std::vector<help_viewer::LinkTarget> links = Open("0").TheLayout().links;
  ASSERT_EQ(links.size(), 2U);
  const auto next_from = [this](int scroll_px, bool backward) {
    TopicPane& pane = Open("0");
    pane.SurfaceChanged(&rig.device, 300, kHeightPx);
    pane.ScrollTo(scroll_px);
    EXPECT_EQ(pane.ScrollPosition(), scroll_px);
    pane.FocusNextLink(backward);
    return pane.FocusedLink();
  };
  const int below_first_px = links[0].top + links[0].height;
  EXPECT_EQ(next_from(below_first_px, false), 1);
  EXPECT_EQ(next_from(below_first_px - 1, false), 0);
  const int above_last_px = links[1].top - kHeightPx;
  EXPECT_EQ(next_from(above_last_px, true), 0);
  EXPECT_EQ(next_from(above_last_px + 1, true), 1);
}

TEST_F(HelpPane, EnterFollowsTheLinkWithTheKeyboard) {
  TopicPane& pane = Open("0");
  pane.PressEnter();
  EXPECT_EQ(rig.Title(), "Welcome");
  pane.FocusNextLink(false);
  pane.FocusNextLink(false);
  pane.PressEnter();
  EXPECT_EQ(rig.Title(), "A Long One");
  EXPECT_EQ(pane.FocusedLink(), -1);
}

TEST_F(HelpPane, LinkUnderThePointerIsFoundAlsoWhenScrolled) {
  TopicPane& pane = Open("7");
  pane.ScrollBy(Scroll::kBottom);
  const auto& pieces = pane.TheLayout().pieces;
  const auto link =
      std::find_if(pieces.begin(), pieces.end(), [](const auto& piece) { return piece.link == 0; });
  ASSERT_NE(link, pieces.end());
  const int top = link->top - pane.ScrollPosition();
  EXPECT_EQ(pane.LinkAt(link->left, top), 0);
  EXPECT_EQ(pane.LinkAt(link->left + link->width - 1, top + link->height - 1), 0);
  EXPECT_EQ(pane.LinkAt(link->left - 1, top), -1);
  EXPECT_EQ(pane.LinkAt(link->left + link->width, top), -1);
  EXPECT_EQ(pane.LinkAt(link->left, top - 1), -1);
  EXPECT_EQ(pane.LinkAt(link->left, top + link->height), -1);
  pane.Follow(pane.LinkAt(link->left, top));
  EXPECT_EQ(rig.Title(), "Welcome");
}

TEST_F(HelpPane, FollowingAMissingLinkOrWithoutAWindowDoesNothing) {
  TopicPane& pane = Open("0");
  pane.Follow(2);
  pane.Follow(-1);
  EXPECT_EQ(rig.Title(), "Welcome");
  rig.form->Form().Unload();
  pane.Follow(0);
  EXPECT_EQ(rig.Title(), "Welcome");
}

TEST_F(HelpPane, MarkedPlacesComeInOrderAndIntoView) {
  TopicPane& pane = Open("7");
  pane.Mark("cAF\xC9");
  ASSERT_NE(pane.Marked(), nullptr);
  EXPECT_EQ(*pane.Marked(), (help_viewer::Passage{1, 0, 16, 4}));
  EXPECT_EQ(pane.ScrollPosition(), 0);
  for (int i = 0; i < 20; ++i) pane.MarkNext();
  EXPECT_EQ(pane.Marked()->block, 21U);
  const auto& lines = pane.TheLayout().lines;
  const auto line = std::find_if(lines.begin(), lines.end(), [](const auto& one) { return one.block == 21; });
  EXPECT_GE(line->top, pane.ScrollPosition());
  EXPECT_LE(line->top + line->height, pane.ScrollPosition() + 200);
  for (int i = 0; i < 10; ++i) pane.MarkNext();
  EXPECT_EQ(pane.Marked()->block, 1U) << "the first follows the last";
  EXPECT_LE(pane.ScrollPosition(), lines[1].top);
  pane.Mark("nowhere");
  EXPECT_EQ(pane.Marked(), nullptr);
  pane.MarkNext();
  EXPECT_EQ(pane.Marked(), nullptr);
}

TEST_F(HelpPane, MarkedPlaceIsFoundInThePieceThatContainsIt) {
  constexpr int kLetterPx = 8;
  HelpRig broken_word("@3\tOne\nPabcdefgh\n");
  broken_word.Start("3");
  broken_word.Pane().SurfaceChanged(&broken_word.device, 4 * kLetterPx + 16, 16);
  const auto& pieces = broken_word.Pane().TheLayout().pieces;
  const auto second = std::find_if(pieces.begin(), pieces.end(), [](const help_viewer::Piece& piece) {
    return piece.characters == "efgh";
  });
  ASSERT_NE(second, pieces.end());
  broken_word.Pane().Mark("ef");
  // With one line above it.
  EXPECT_EQ(broken_word.Pane().ScrollPosition(), second->top - 16)
      << "and not the piece that ends where the word begins";
}

}  // namespace
}  // namespace qdix::tests
