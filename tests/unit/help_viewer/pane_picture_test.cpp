// What the pane and the paper show of a topic: pieces, rules and highlighted matches in their colours.
#include "help_viewer/pane_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

using help_viewer::TopicPane;

class HelpPicture : public testing::Test {
 protected:
  TopicPane& Open(const std::string& topic) {
    rig.Start(topic);
    return rig.Pane();
  }
  /// Returns the texts that are visible between two pixel rows.
  std::vector<std::string> TextsBetween(int first_px, int end_px) {
    rig.device.texts.clear();
    rig.device.boxes.clear();
    DrawLayout(rig.device, rig.Pane().TheLayout(), {.first_px = first_px, .end_px = end_px}, {}, nullptr);
    std::vector<std::string> texts;
    for (const auto& drawn : rig.device.texts) texts.push_back(drawn.text);
    return texts;
  }

  HelpRig rig;
};

TEST_F(HelpPicture, ShowsVisiblePiecesInTheirColours) {
  TopicPane& pane = Open("0");
  const help_viewer::Palette palette{
      .background = 1, .text = 2, .link = 3, .marked_background = 4, .marked_text = 5};
  DrawLayout(rig.device, pane.TheLayout(), {.first_px = 0, .end_px = 200, .left_px = 30, .top_px = 7},
             palette, nullptr);
  ASSERT_FALSE(rig.device.texts.empty());
  EXPECT_EQ(rig.device.texts[0].text, "Welcome");
  EXPECT_EQ(rig.device.texts[0].left, pane.TheLayout().pieces[0].left + 30);
  EXPECT_EQ(rig.device.texts[0].top, pane.TheLayout().pieces[0].top + 7);
  EXPECT_EQ(rig.device.texts[0].colour, 2U);
  const auto link = std::find_if(rig.device.texts.begin(), rig.device.texts.end(),
                                 [](const auto& drawn) { return drawn.text == "the files"; });
  ASSERT_NE(link, rig.device.texts.end());
  EXPECT_EQ(link->colour, 3U);
  EXPECT_TRUE(link->look.is_underlined);
  EXPECT_TRUE(rig.device.boxes.empty());
}

TEST_F(HelpPicture, LeavesOutInvisiblePieces) {
  TopicPane& pane = Open("7");
  DrawLayout(rig.device, pane.TheLayout(), {.first_px = 400, .end_px = 420, .top_px = 0}, {}, nullptr);
  EXPECT_FALSE(rig.device.texts.empty());
  EXPECT_LE(rig.device.texts.size(), 3U);
  for (const auto& drawn : rig.device.texts) {
    EXPECT_GT(drawn.top, -16);
    EXPECT_LT(drawn.top, 20);
  }
}

TEST_F(HelpPicture, MarkedPlaceIsDrawnOnItsOwnBackground) {
  TopicPane& pane = Open("4");
  pane.Mark("the");
  const help_viewer::Palette palette{
      .background = 1, .text = 2, .link = 3, .marked_background = 4, .marked_text = 5};
  DrawLayout(rig.device, pane.TheLayout(), {.first_px = 0, .end_px = 200, .top_px = 0}, palette,
             pane.Marked());
  ASSERT_EQ(rig.device.boxes.size(), 1U);
  EXPECT_EQ(rig.device.boxes[0].colour, 4U);
  EXPECT_EQ(rig.device.boxes[0].width, 3 * 8);
  EXPECT_EQ(rig.device.texts.back().text, "the");
  EXPECT_EQ(rig.device.texts.back().colour, 5U);
  EXPECT_EQ(rig.device.texts.back().left, rig.device.boxes[0].left);
  EXPECT_EQ(rig.device.boxes[0].left, pane.TheLayout().pieces[1].left + 6 * 8);
}

TEST_F(HelpPicture, RuleOfATableIsDrawn) {
  TopicPane& pane = Open("5");
  DrawLayout(rig.device, pane.TheLayout(), {.first_px = 0, .end_px = 200, .top_px = 0}, {.text = 2}, nullptr);
  ASSERT_EQ(rig.device.boxes.size(), 1U);
  EXPECT_EQ(rig.device.boxes[0].height, 1);
  EXPECT_EQ(rig.device.boxes[0].colour, 2U);
}

TEST_F(HelpPicture, PieceAndRuleAreVisibleFromFirstToLastPixel) {
  using Texts = std::vector<std::string>;
  const help_viewer::Piece title = Open("5").TheLayout().pieces[0];
  EXPECT_EQ(TextsBetween(0, title.top), Texts{});
  EXPECT_EQ(TextsBetween(0, title.top + 1), Texts{"Files"});
  EXPECT_EQ(TextsBetween(title.top + title.height - 1, title.top + title.height), Texts{"Files"});
  EXPECT_EQ(TextsBetween(title.top + title.height, title.top + title.height + 1), Texts{});
  const int rule_px = rig.Pane().TheLayout().rules.at(0).top;
  for (const auto& [first_px, rules] : {std::pair{rule_px - 1, 0U}, {rule_px, 1U}, {rule_px + 1, 0U}}) {
    TextsBetween(first_px, first_px + 1);
    EXPECT_EQ(rig.device.boxes.size(), rules) << first_px - rule_px;
  }
}

TEST_F(HelpPicture, MarkedPlaceOfSeveralPiecesIsMarkedInEach) {
  TopicPane& pane = Open("0");
  pane.Mark("d bold w");
  DrawLayout(rig.device, pane.TheLayout(), {.first_px = 0, .end_px = 200}, {}, pane.Marked());
  std::vector<int> widths;
  for (const auto& box : rig.device.boxes) widths.push_back(box.width);
  EXPECT_EQ(widths, (std::vector<int>{2 * 8, 4 * 9, 2 * 8}));
  EXPECT_EQ(rig.device.boxes[1].left, rig.device.boxes[0].left + 2 * 8);
  EXPECT_EQ(rig.device.boxes[2].left, rig.device.boxes[1].left + 4 * 9);
}

/// Records the order in which boxes and texts are drawn.
class OrderDevice final : public os::TextDevice {
 public:
  int GetTextExtentPoint32A(const os::FontLook& /*look*/, std::string_view text) override {
    return static_cast<int>(text.size());
  }
  os::FontHeight GetTextMetricsA(const os::FontLook& /*look*/) override { return {}; }
  void TextOutA(int /*left_px*/, int /*top_px*/, const os::FontLook& /*look*/, std::uint32_t /*colour*/,
                std::string_view text) override {
    drawn.emplace_back(text);
  }
  void FillRect(int /*left_px*/, int /*top_px*/, int /*width_px*/, int /*height_px*/,
                std::uint32_t /*colour*/) override {
    drawn.emplace_back("(box)");
  }
  std::vector<std::string> drawn;
};

TEST_F(HelpPicture, MarkedTextIsAboveItsBackgroundAndThatAboveTheText) {
  TopicPane& pane = Open("4");
  pane.Mark("button");
  OrderDevice device;
  DrawLayout(device, pane.TheLayout(), {.first_px = 0, .end_px = 200}, {}, pane.Marked());
  EXPECT_EQ(device.drawn, (std::vector<std::string>{"Memory", "Press the button.", "(box)", "button"}));
}

TEST_F(HelpPicture, MarkedCellLeavesItsNeighbourUnmarked) {
  TopicPane& pane = Open("5");
  pane.Mark("100");
  ASSERT_EQ(pane.Marked()->cell, 1U);
  DrawLayout(rig.device, pane.TheLayout(), {.first_px = 0, .end_px = 200},
             {.marked_background = 4, .marked_text = 5}, pane.Marked());
  const auto marks = std::count_if(rig.device.boxes.begin(), rig.device.boxes.end(),
                                   [](const auto& box) { return box.colour == 4U; });
  EXPECT_EQ(marks, 1);
  for (const auto& drawn : rig.device.texts) EXPECT_EQ(drawn.colour == 5U, drawn.text == "100") << drawn.text;
}

}  // namespace
}  // namespace qdix::tests
