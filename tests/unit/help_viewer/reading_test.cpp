// The program from start to end: topics by number, contents, links, Back.
#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

TEST(HelpReading, OpensTheTopicByNumberAndGivesItTheKeyboard) {
  HelpRig rig;
  rig.Start("5");
  EXPECT_TRUE(rig.form->Form().Shown());
  EXPECT_EQ(rig.form->Form().Caption(), "Quondix Help");
  EXPECT_EQ(rig.Title(), "Files");
  EXPECT_EQ(rig.Screen().lstContents.SelectedText(), "    Files");
  EXPECT_TRUE(rig.Pane().HasFocus());
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled());
}

TEST(HelpReading, EveryOpenViewerIsAskedToClose) {
  HelpRig rig;
  os::Windows& windows = rig.machine.GetSystem().windows;
  rig.machine.OpenWindow("QDIXMain", "Quondix Help");
  const os::WindowHandle other = rig.machine.OpenWindow("QDIXMain", "14.5 MB   Q-DIX");
  rig.machine.OpenWindow("QDIXMain", "Quondix Help");
  rig.Start("5");
  EXPECT_EQ(windows.FindWindowA(nullptr, "Quondix Help"), 0U);
  EXPECT_EQ(windows.FindWindowA("QDIXMain", nullptr), other);
}

TEST(HelpReading, TopicZeroIsATopic) {
  HelpRig rig;
  rig.Start("0");
  EXPECT_EQ(rig.Title(), "Welcome");
}

TEST(HelpReading, UnknownMissingAndMalformedNumbersOpenTheContents) {
  for (const char* const arguments : {"", "1", "12345", "x", "-4", "4x", "4 5", "4.0", "99999999999"}) {
    HelpRig rig;
    rig.Start(arguments);
    EXPECT_EQ(rig.Title(), "Contents") << arguments;
    EXPECT_EQ(rig.Screen().lstContents.SelectedIndex(), ui::ListBox::kNoSelection) << arguments;
    EXPECT_TRUE(rig.Screen().lstContents.HasFocus()) << arguments;
    EXPECT_TRUE(rig.machine.Boxes().empty()) << arguments;
  }
}

TEST(HelpReading, TitleOfTheWindowIsUnique) {
  HelpRig rig;
  rig.Start("4");
  EXPECT_NE(rig.form->TheApplication().Title(), "Quondix Help")
      << "the hidden window and boxes have this title";
}

TEST(HelpReading, ContentsListHasTheTopicsUnderTheirSections) {
  HelpRig rig;
  rig.Start("4");
  EXPECT_EQ(HelpRig::RowsOf(rig.Screen().lstContents),
            (std::vector<std::string>{"First Steps", "    Welcome", "    Memory", "The Rest", "    Files",
                                      "    A Long One", "    About"}));
}

TEST(HelpReading, RowOfTheContentsShowsItsTopicAndAHeadingChangesNothing) {
  HelpRig rig;
  rig.Start("4");
  rig.Screen().lstContents.Choose("    About");
  EXPECT_EQ(rig.Title(), "About");
  rig.Screen().lstContents.Choose("The Rest");
  EXPECT_EQ(rig.Title(), "About");
  EXPECT_EQ(rig.Screen().lstContents.SelectedText(), "The Rest");
}

TEST(HelpReading, LinkToItsOwnTopicScrollsToTheTop) {
  std::string stream = "@3\tOne\n";
  for (int i = 0; i < 30; ++i) stream += "PText.\n";
  HelpRig rig(stream +
              "P\x03"
              "3\x1F"
              "top\x04\n");
  rig.Start("3");
  rig.Pane().ScrollTo(100);
  ASSERT_EQ(rig.Pane().ScrollPosition(), 100);
  rig.Pane().Follow(0);
  EXPECT_EQ(rig.Pane().ScrollPosition(), 0);
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled()) << "the link is no step to go back from";
}

TEST(HelpReading, FiftyStepsBackAreRememberedAndStayingIsNotAStep) {
  // Each topic links to itself and to the other.
  HelpRig rig(
      "@1\tOne\nP\x03"
      "1\x1Fhere\x04 \x03"
      "2\x1Fthere\x04\n"
      "@2\tTwo\nP\x03"
      "2\x1Fhere\x04 \x03"
      "1\x1Fthere\x04\n");
  rig.Start("1");
  for (int step = 0; step < 50; ++step) rig.Pane().Follow(1);
  ASSERT_EQ(rig.Title(), "One");
  rig.Pane().Follow(0);
  for (int step = 0; step < 50; ++step) rig.Screen().cmdBack.Press();
  EXPECT_EQ(rig.Title(), "One");
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled());
}

TEST(HelpReading, BackWithoutAPreviousTopicDoesNoHarm) {
  HelpRig rig;
  rig.Start("4");
  // Acts like a late access key that gets past the disabled button.
  EXPECT_TRUE(rig.Screen().cmdBack.OnClick().Ok());
  EXPECT_EQ(rig.Title(), "Memory");
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled());
}

/// Makes the checks of a test at each change.
class AskingPeer final : public ui::ControlPeer {
 public:
  explicit AskingPeer(std::function<std::string()> ask) : ask_(std::move(ask)) {}
  void ControlChanged(ui::Control& /*control*/, ui::Change change) override {
    answers.emplace_back(change, ask_());
  }
  std::vector<std::pair<ui::Change, std::string>> answers;

 private:
  std::function<std::string()> ask_;
};

using Answers = std::vector<std::pair<ui::Change, std::string>>;

TEST(HelpReading, WindowShowsItselfWithItsTopic) {
  HelpRig rig;
  rig.Make("4");
  AskingPeer peer([&rig] { return rig.Title(); });
  rig.form->Form().AttachPeer(&peer);
  rig.form->Start();
  EXPECT_EQ(peer.answers, (Answers{{ui::Change::kVisible, "Memory"}}));
}

TEST(HelpReading, KeyboardMovesBeforeItsControlIsHidden) {
  HelpRig rig;
  rig.Start("4");
  const auto focused = [&rig] { return std::string(rig.form->Form().Focused()->Name()); };
  rig.Pane().Follow(0);
  rig.Screen().lstContents.Choose("    About");
  AskingPeer back(focused);
  rig.Screen().cmdBack.SetFocus();
  rig.Screen().cmdBack.AttachPeer(&back);
  rig.Screen().cmdBack.Press();
  EXPECT_EQ(back.answers, (Answers{{ui::Change::kEnabled, std::string(rig.Pane().Name())}}));

  AskingPeer contents(focused);
  AskingPeer word(focused);
  rig.Screen().lstContents.SetFocus();
  rig.Screen().lstContents.AttachPeer(&contents);
  rig.Screen().cmdFind.Press();
  EXPECT_EQ(contents.answers, (Answers{{ui::Change::kVisible, std::string(rig.Screen().txtWord.Name())}}));
  rig.Screen().lstContents.AttachPeer(nullptr);
  rig.Screen().txtWord.AttachPeer(&word);
  rig.Screen().cmdContents.Press();
  EXPECT_EQ(word.answers, (Answers{{ui::Change::kVisible, std::string(rig.Screen().lstContents.Name())}}));
}

TEST(HelpReading, UntrappedErrorIsShownAndEndsTheProgram) {
  HelpRig rig;
  rig.Start("4");
  rig.machine.WhileBoxIsOpen([&rig] { EXPECT_FALSE(rig.form->Form().Unloaded()); });
  rig.form->Form().Dispatcher().Report(base::kOverflow);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_TRUE(rig.machine.Boxes()[0].text.starts_with("Run-time error '6':"));
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk | os::kMbIconExclamation);
  EXPECT_TRUE(rig.form->Form().Unloaded());
}

TEST(HelpReading, EnterInTheContentsGivesTheTopicTheKeyboard) {
  HelpRig rig;
  rig.Start("");
  rig.Screen().lstContents.PressEnter();
  EXPECT_TRUE(rig.Screen().lstContents.HasFocus()) << "no row is selected";
  rig.Screen().lstContents.Choose("The Rest");
  rig.Screen().lstContents.PressEnter();
  EXPECT_TRUE(rig.Screen().lstContents.HasFocus()) << "a heading has no topic";
  rig.Screen().lstContents.Choose("    A Long One");
  rig.Screen().lstContents.PressEnter();
  EXPECT_TRUE(rig.Pane().HasFocus());
}

TEST(HelpReading, BackReturnsToThePlaceOfTheLink) {
  HelpRig rig;
  rig.Start("7");
  rig.Pane().ScrollBy(help_viewer::TopicPane::Scroll::kBottom);
  const int place = rig.Pane().ScrollPosition();
  rig.Pane().Follow(0);
  EXPECT_EQ(rig.Title(), "Welcome");
  EXPECT_EQ(rig.Pane().ScrollPosition(), 0);
  EXPECT_EQ(rig.Screen().lstContents.SelectedText(), "    Welcome");
  EXPECT_TRUE(rig.Screen().cmdBack.Enabled());
  rig.Screen().cmdBack.Press();
  EXPECT_EQ(rig.Title(), "A Long One");
  EXPECT_EQ(rig.Pane().ScrollPosition(), place);
  EXPECT_EQ(rig.Screen().lstContents.SelectedText(), "    A Long One");
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled());
}

TEST(HelpReading, BackGoesStepByStep) {
  HelpRig rig;
  rig.Start("0");
  for (const char* const row : {"    Memory", "    Files", "    About"}) rig.Screen().lstContents.Choose(row);
  for (const char* const title : {"Files", "Memory", "Welcome"}) {
    rig.Screen().cmdBack.Press();
    EXPECT_EQ(rig.Title(), title);
  }
  rig.Screen().cmdBack.Press();
  EXPECT_EQ(rig.Title(), "Welcome");
}

TEST(HelpReading, VeryLongHistoryForgetsItsBeginning) {
  HelpRig rig;
  rig.Start("0");
  for (int i = 0; i < 200; ++i) rig.Screen().lstContents.Choose(i % 2 == 0 ? "    Memory" : "    Files");
  int steps = 0;
  while (rig.Screen().cmdBack.Enabled()) {
    rig.Screen().cmdBack.Press();
    ++steps;
  }
  EXPECT_EQ(steps, 50);
}

TEST(HelpReading, KeyboardIsOnTheTopicAfterBackCopyAndPrint) {
  HelpRig rig;
  rig.Start("0");
  rig.Pane().Follow(0);
  for (ui::Button* const button : {&rig.Screen().cmdCopy, &rig.Screen().cmdPrint, &rig.Screen().cmdBack}) {
    button->SetFocus();
    button->Press();
    EXPECT_TRUE(rig.Pane().HasFocus()) << button->Name();
  }
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled());
}

TEST(HelpReading, ContentsButtonShowsThePageOfAllTopics) {
  HelpRig rig;
  rig.Start("4");
  rig.Screen().cmdContents.Press();
  EXPECT_EQ(rig.Title(), "Contents");
  EXPECT_TRUE(rig.Screen().lstContents.HasFocus());
  EXPECT_EQ(rig.Screen().lstContents.SelectedIndex(), ui::ListBox::kNoSelection);
  rig.Pane().Follow(1);
  EXPECT_EQ(rig.Title(), "Memory");
  rig.Screen().cmdBack.Press();
  EXPECT_EQ(rig.Title(), "Contents");
  rig.Screen().cmdBack.Press();
  EXPECT_EQ(rig.Title(), "Memory");
}

TEST(HelpReading, TopicOpenedAgainIsShownFromItsBeginning) {
  HelpRig rig;
  rig.Start("");
  rig.Screen().cmdContents.Press();
  EXPECT_FALSE(rig.Screen().cmdBack.Enabled()) << "the topic was already shown";
}

TEST(HelpReading, EscClosesAndSoDoesTheSystem) {
  HelpRig rig;
  rig.Start("4");
  rig.form->Form().PressEscape();
  EXPECT_TRUE(rig.form->Form().Unloaded());
  HelpRig other;
  other.Start("4");
  other.form->Form().Close();
  EXPECT_TRUE(other.form->Form().Unloaded());
  HelpRig ending;
  ending.Start("4");
  ending.form->EndSession();
  EXPECT_TRUE(ending.form->Form().Unloaded());
}

TEST(HelpReading, BookWithoutTopicsIsAlsoShown) {
  for (const char* const stream : {"", "SOnly a section\n", "garbage\n"}) {
    HelpRig rig(stream);
    rig.Start("4");
    EXPECT_EQ(rig.Title(), "Contents");
    EXPECT_EQ(rig.Screen().lstContents.Count(), 0);
  }
}

}  // namespace
}  // namespace qdix::tests
