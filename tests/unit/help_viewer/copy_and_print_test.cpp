// The topic on the clipboard and on paper, and the messages when that fails.
#include <gtest/gtest.h>

#include "help_viewer/paper.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

using Calls = std::vector<std::string>;
using Choice = os::Printer::Choice;

TEST(HelpCopy, WholeTopicIsPutOnTheClipboardAsText) {
  HelpRig rig;
  rig.Start("0");
  rig.Screen().cmdCopy.Press();
  EXPECT_EQ(rig.clipboard.text,
            "Welcome\r\n\r\nShort and bold words, press Enter.\r\n\r\n"
            "1. See the files.\r\n2. Then the rest and nothing.\r\n");
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST(HelpCopy, RowsHaveTabsAndFixedLinesAreNotSeparated) {
  HelpRig rig;
  rig.Start("5");
  rig.Pane().Copy();
  EXPECT_EQ(rig.clipboard.text,
            "Files\r\n\r\nSizes\r\n\r\nFile\tSize\r\nQDIX.exe\t100 KB\r\nundo.exe\t40 KB\r\n");
  HelpRig other;
  other.Start("11");
  other.Pane().Copy();
  EXPECT_EQ(other.clipboard.text, "About\r\n\r\n[section]\r\nkey=value\r\n");
}

TEST(HelpCopy, BulletsAreHyphens) {
  HelpRig rig;
  rig.Start("7");
  rig.Pane().Copy();
  EXPECT_TRUE(rig.clipboard.text.ends_with("in it.\r\n\r\n- Back to the start\r\n"));
}

TEST(HelpCopy, ClipboardHeldByAnotherProgramIsReported) {
  HelpRig rig;
  rig.clipboard.is_held = true;
  rig.Start("0");
  rig.Screen().cmdCopy.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(
      rig.machine.Boxes()[0].text,
      "The topic could not be copied.\r\n\r\nAnother program may be using the clipboard. Please try again.");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX Help")
      << "the title of the window would be found instead of it";
  EXPECT_FALSE(rig.form->Form().Unloaded());
}

TEST(HelpPrint, TopicIsPrintedWithMarginsOnOnePage) {
  HelpRig rig;
  rig.Start("0");
  rig.Screen().cmdPrint.Press();
  EXPECT_EQ(rig.printer.calls,
            (Calls{"PrintDlgA", "StartDocA", "StartPage", "EndPage", "EndDoc", "DeleteDC"}));
  EXPECT_EQ(rig.printer.document, "Quondix Help");
  ASSERT_EQ(rig.printer.pages.size(), 1U);
  EXPECT_EQ(rig.printer.pages[0][0].text, "Welcome");
  EXPECT_EQ(rig.printer.pages[0][0].left, 50);
  EXPECT_EQ(rig.printer.pages[0][0].top, 50);
  for (const auto& drawn : rig.printer.pages[0])
    EXPECT_EQ(drawn.colour, 0U) << "everything is black, also links";
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST(HelpPrint, LongTopicTakesSeveralPagesAndNoLineIsSplit) {
  HelpRig rig;
  rig.Start("7");
  rig.Screen().cmdPrint.Press();
  EXPECT_TRUE(rig.printer.has_printed);
  ASSERT_EQ(rig.printer.pages.size(), 2U);
  std::size_t paragraphs = 0;
  for (const auto& page : rig.printer.pages) {
    EXPECT_EQ(page.front().top, 50);
    for (const auto& drawn : page) {
      EXPECT_LE(drawn.top + 16, 600 - 50);
      if (drawn.text.starts_with("Paragraph ")) ++paragraphs;
    }
  }
  EXPECT_EQ(paragraphs, 30U);
}

TEST(HelpPrint, PagesEndBetweenLines) {
  help_viewer::Layout layout;
  for (int line = 0; line < 10; ++line) layout.lines.push_back({.top = line * 10, .height = 10});
  const std::vector<help_viewer::Page> pages = help_viewer::Paginate(layout, 35);
  ASSERT_EQ(pages.size(), 4U);
  EXPECT_EQ(pages[1].first_px, 30);
  EXPECT_EQ(pages[1].end_px, 60);
  EXPECT_EQ(help_viewer::Paginate(layout, 5).size(), 10U) << "a line higher than the paper gets its own page";
  EXPECT_EQ(help_viewer::Paginate({}, 35).size(), 1U);
  EXPECT_EQ(help_viewer::Paginate(layout, 30).size(), 4U) << "three lines fill a page to the last pixel";
  EXPECT_EQ(help_viewer::Paginate(layout, 29).size(), 5U);
}

TEST(HelpPrint, MarginIsHalfAnInchOrAQuarterOfSmallPaper) {
  const auto margin_px = [](const os::PrinterPage& paper) {
    HelpRig rig;
    rig.printer.page = paper;
    rig.Start("4");
    rig.Screen().cmdPrint.Press();
    EXPECT_EQ(rig.printer.pages.at(0).at(0).left, rig.printer.pages.at(0).at(0).top);
    return rig.printer.pages.at(0).at(0).left;
  };
  EXPECT_EQ(margin_px({.width_px = 800, .height_px = 600, .dots_per_inch = 100}), 50);
  EXPECT_EQ(margin_px({.width_px = 160, .height_px = 600, .dots_per_inch = 100}), 40);
  EXPECT_EQ(margin_px({.width_px = 800, .height_px = 120, .dots_per_inch = 100}), 30);
}

TEST(HelpPrint, PageIsFilledToItsLowerMargin) {
  // The title with the space below it is 40 pixels high, and a fixed line 18.
  const auto pages_of_height = [](int height_px) {
    HelpRig rig("@3\tOne\nC1\nC2\nC3\nC4\nC5\n");
    rig.printer.page = {.width_px = 800, .height_px = height_px, .dots_per_inch = 100};
    rig.Start("3");
    rig.Screen().cmdPrint.Press();
    return rig.printer.pages.size();
  };
  EXPECT_EQ(pages_of_height(50 + 40 + 5 * 18 + 50), 1U);
  EXPECT_EQ(pages_of_height(50 + 40 + 5 * 18 + 50 - 1), 2U);
}

TEST(HelpPrint, LinesAreWrappedWithinBothMargins) {
  // 100 pixels minus two margins of 25 leave room for six letters, but not for seven.
  HelpRig rig("@3\tOne\nPab cde f\n");
  rig.printer.page = {.width_px = 100, .height_px = 600, .dots_per_inch = 100};
  rig.Start("3");
  rig.Screen().cmdPrint.Press();
  std::vector<std::string> texts;
  for (const auto& drawn : rig.printer.pages.at(0)) texts.push_back(drawn.text);
  EXPECT_EQ(texts, (std::vector<std::string>{"One", "ab cde", "f"}));
}

TEST(HelpPrint, CancelPrintsNothingAndSaysNothing) {
  HelpRig rig;
  rig.printer.choice = Choice::kCancelled;
  rig.Start("0");
  rig.Screen().cmdPrint.Press();
  EXPECT_EQ(rig.printer.calls, Calls{"PrintDlgA"});
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST(HelpPrint, MissingPrinterIsReported) {
  HelpRig rig;
  rig.printer.choice = Choice::kFailed;
  rig.Start("0");
  rig.Screen().cmdPrint.Press();
  EXPECT_EQ(rig.printer.calls, Calls{"PrintDlgA"});
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            "The topic could not be printed.\r\n\r\nPlease make sure that a printer is installed and ready.");
}

TEST(HelpPrint, RefusingPrinterIsReportedAndTheDocumentAbandoned) {
  for (const char* const call : {"StartDocA", "StartPage", "EndPage", "EndDoc"}) {
    HelpRig rig;
    rig.printer.failing_call = call;
    rig.Start("0");
    rig.Screen().cmdPrint.Press();
    EXPECT_FALSE(rig.printer.has_printed) << call;
    EXPECT_EQ(rig.machine.Boxes().size(), 1U) << call;
    const bool has_begun = std::string(call) != "StartDocA";
    const Calls& calls = rig.printer.calls;
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "AbortDoc"), has_begun ? 1 : 0) << call;
    EXPECT_EQ(calls.back(), "DeleteDC") << call;
    EXPECT_FALSE(rig.printer.is_open);
  }
}

TEST(HelpPrint, ProgramThatEndsDuringTheDialogPrintsNothing) {
  for (const Choice choice : {Choice::kPrint, Choice::kFailed}) {
    HelpRig rig;
    rig.printer.choice = choice;
    rig.Start("0");
    rig.printer.while_open = [&rig] { rig.form->Form().Close(); };
    rig.Screen().cmdPrint.Press();
    EXPECT_TRUE(rig.form->Form().Unloaded());
    EXPECT_FALSE(rig.printer.is_open);
    EXPECT_TRUE(rig.printer.pages.empty());
    EXPECT_TRUE(rig.machine.Boxes().empty());
  }
}

TEST(HelpPrint, TinyPaperDoesNoHarm) {
  for (const int side : {0, 1, 5}) {
    HelpRig rig;
    rig.printer.page = {.width_px = side, .height_px = side, .dots_per_inch = 600};
    rig.Start("4");
    rig.Screen().cmdPrint.Press();
    EXPECT_TRUE(rig.printer.has_printed);
  }
}

}  // namespace
}  // namespace qdix::tests
