// The shipped help.exe with its built-in topics: by number, by keyboard, and as another program sees it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "help_viewer/book.h"
#include "help_viewer/packed_stream.h"
#include "help_viewer/plain_text.h"
#include "tests/e2e/driver/file_keeper.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/help_windows.h"
#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/photograph.h"
#include "tests/e2e/driver/registry.h"
#include "tests/e2e/driver/shipped_program.h"
#include "tests/e2e/window_rules.h"

namespace qdix::e2e {
namespace {

using help_viewer::kContentsPage;

constexpr const char* kWindowTitle = "Quondix Help";
/// Long enough for a superfluous viewer to close.
constexpr int kSecondViewerMs = 1500;

/// The highlight colour of the prefix, dark blue, as bytes of the screen.
constexpr std::string_view kHighlight("\x00\x00\x80", 3);

std::string ClipboardText() {
  std::string text;
  if (OpenClipboard(nullptr) == 0) return text;
  HANDLE const memory = GetClipboardData(CF_TEXT);
  if (memory != nullptr) {
    text = static_cast<const char*>(GlobalLock(memory));
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

struct TitleCount {
  int count = 0;

  static BOOL CALLBACK Look(HWND window, LPARAM counted) {
    if (TextOf(window) == kWindowTitle) ++reinterpret_cast<TitleCount*>(counted)->count;
    return TRUE;
  }
};

class HelpSession : public testing::Test {
 protected:
  HelpSession() { DeleteTree(kHelpSettings); }
  void TearDown() override {
    if (HasFailure()) {
      EXPECT_TRUE(
          Photograph(std::string("failed_") + testing::UnitTest::GetInstance()->current_test_info()->name()));
    }
    program.Kill();
    DeleteTree(kHelpSettings);
  }

  void Start(const std::string& arguments) {
    ASSERT_TRUE(program.Start(arguments));
    ASSERT_TRUE(program.WaitForWindow());
    ASSERT_TRUE(BringForward(program.MainWindow()));
  }
  void CloseAndExpectEnd() {
    program.Close();
    EXPECT_EQ(program.WaitForExit(), 0);
  }

  /// Returns the row of a topic in the contents, or LB_ERR.
  [[nodiscard]] LRESULT RowOf(int topic) const {
    LRESULT row = 0;
    int section = -1;
    for (int index = 0; index < book.Count(); ++index, ++row) {
      if (book.Entries()[static_cast<std::size_t>(index)].section != section) ++row;
      section = book.Entries()[static_cast<std::size_t>(index)].section;
      if (index == topic) return row;
    }
    return LB_ERR;
  }
  [[nodiscard]] bool HasSelected(int topic) const {
    return program.Await([&] { return Ask(program.Control("lstContents"), LB_GETCURSEL) == RowOf(topic); });
  }
  /// Expects this topic to be selected in the contents, and Copy to copy its text. Leaves the keyboard on the
  /// contents.
  void ExpectTopic(int topic) {
    EXPECT_TRUE(program.Await([&] {
      return Ask(program.Control("lstContents"), LB_GETCURSEL) == RowOf(topic);
    })) << "topic "
        << topic;
    const DWORD before = GetClipboardSequenceNumber();
    program.Press("cmdCopy");
    ExpectCopied(topic, before);
  }
  /// Expects that the text of the topic was put on the clipboard after its sequence number was `before`. Does
  /// not open the clipboard until then: the program could not open it at the same time.
  void ExpectCopied(int topic, DWORD before) const {
    EXPECT_TRUE(program.Await([&] { return GetClipboardSequenceNumber() != before; }))
        << "the clipboard is open in a window of the class " << ClassOf(GetOpenClipboardWindow());
    const std::string expected = PlainText(book.Read(topic));
    EXPECT_TRUE(program.Await([&] { return ClipboardText() == expected; })) << ClipboardText();
    EXPECT_TRUE(program.MessageBoxes().empty());
  }
  void ExpectKeyboardOn(const std::string& name) {
    EXPECT_TRUE(program.Await([&] { return program.FocusedControl() == name; }))
        << name << " expected, " << program.FocusedControl() << " has the keyboard";
  }
  [[nodiscard]] int TopicOf(std::int32_t number) const { return book.IndexOf(number); }
  /// Returns the number of the first topic that a topic links to.
  [[nodiscard]] std::int32_t FirstLinkOf(int topic) const {
    for (const help_viewer::Block& block : book.Read(topic).blocks) {
      for (const help_viewer::Text& text : block.cells) {
        for (const help_viewer::Run& run : text.runs) {
          if (run.link != help_viewer::kNoLink) return run.link;
        }
      }
    }
    return help_viewer::kNoLink;
  }
  [[nodiscard]] std::string PanePixels() const { return ScreenPixels(program.ScreenRect("paneTopic")); }
  /// Moves the window to this place on the screen and waits until it is there. The window may refuse to
  /// become so small.
  void PlaceWindow(const RECT& wanted) const {
    SetWindowPos(program.MainWindow(), nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - wanted.top, SWP_NOZORDER | SWP_ASYNCWINDOWPOS);
    ASSERT_TRUE(program.Await([&] {
      RECT place = {};
      GetWindowRect(program.MainWindow(), &place);
      return place.left == wanted.left && place.top == wanted.top && place.right >= wanted.right &&
             place.bottom >= wanted.bottom;
    }));
  }

  /// Returns the picture of the pane once it no longer changes.
  std::string AwaitSteadyPane() {
    std::string before;
    std::string now;
    EXPECT_TRUE(program.Await([&] {
      before = now;
      now = PanePixels();
      return !now.empty() && now == before;
    }));
    return now;
  }

  std::string AwaitOtherPane(const std::string& before) {
    std::string now;
    EXPECT_TRUE(program.Await([&] {
      now = PanePixels();
      return !now.empty() && now != before;
    }));
    return now;
  }

  const std::string stream = help_viewer::Unpack(FileBytes(QDIX_PACKED_TOPICS).value_or(""));
  const help_viewer::Book book{stream};
  ShippedProgram program{HelpViewer()};
};

TEST_F(HelpSession, PaneShowsItsTopicAndScrollsAfterAChangeOfTheScreen) {
  Start("4");
  ExpectKeyboardOn("paneTopic");
  const std::string before = PanePixels();
  ASSERT_FALSE(before.empty());
  Ask(program.MainWindow(), WM_DISPLAYCHANGE, 16, MAKELPARAM(800, 600));
  EXPECT_TRUE(program.Await([&] { return PanePixels() == before; }));
  PressKey(VK_NEXT);
  const std::string below = AwaitOtherPane(before);
  Ask(program.MainWindow(), WM_DISPLAYCHANGE, 16, MAKELPARAM(800, 600));
  PressKey(VK_HOME);
  EXPECT_TRUE(program.Await([&] { return PanePixels() == before; }));
  EXPECT_NE(below, before);
  CloseAndExpectEnd();
}

TEST_F(HelpSession, OpensTheTopicOfEachNumber) {
  for (const int number : {0, 4, 9}) {
    Start(std::to_string(number));
    ASSERT_NE(TopicOf(number), kContentsPage);
    ExpectKeyboardOn("paneTopic");
    ExpectTopic(TopicOf(number));
    EXPECT_TRUE(Photograph("help_topic_" + std::to_string(number)));
    CloseAndExpectEnd();
  }
}

TEST_F(HelpSession, UnknownMissingAndMalformedNumbersOpenTheContents) {
  for (const char* const arguments : {"", "9999", "x4", "4 5"}) {
    Start(arguments);
    ExpectTopic(kContentsPage);
    CloseAndExpectEnd();
  }
}

TEST_F(HelpSession, WindowFoundByItsTitleIsTheOnlyOneAndClosesTheProgram) {
  Start("4");
  TitleCount titles;
  EnumWindows(&TitleCount::Look, reinterpret_cast<LPARAM>(&titles));
  EXPECT_EQ(titles.count, 1);
  HWND const found = FindWindowA(nullptr, kWindowTitle);
  EXPECT_EQ(found, program.MainWindow());
  PostMessageA(found, WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0);
}

TEST_F(HelpSession, ClosesAlsoWhileItIsMinimisedAndWhileABoxIsOpen) {
  Start("4");
  ShowWindowAsync(program.MainWindow(), SW_MINIMIZE);
  ASSERT_TRUE(program.Await([this] { return IsIconic(program.MainWindow()) != 0; }));
  PostMessageA(FindWindowA(nullptr, kWindowTitle), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0);
  Start("4");
  PressKeyWith(VK_MENU, 'P');
  EXPECT_TRUE(program.Await([this] { return program.MessageBoxes().size() == 1; }));
  EXPECT_TRUE(Photograph("help_print"));
  PostMessageA(FindWindowA(nullptr, kWindowTitle), WM_CLOSE, 0, 0);
  EXPECT_EQ(program.WaitForExit(), 0);
}

TEST_F(HelpSession, LinksAreFollowedByKeyboardAndBackReturns) {
  Start("0");
  ExpectKeyboardOn("paneTopic");
  const int target = TopicOf(FirstLinkOf(TopicOf(0)));
  ASSERT_NE(target, kContentsPage);
  const std::string before = PanePixels();
  PressKey(VK_TAB);
  AwaitOtherPane(before);
  EXPECT_TRUE(Photograph("help_link"));
  PressKey(VK_RETURN);
  ExpectTopic(target);
  ExpectKeyboardOn("paneTopic");
  PressKeyWith(VK_MENU, 'B');
  ExpectTopic(TopicOf(0));
  EXPECT_TRUE(program.Await([this] { return !program.IsEnabled("cmdBack"); }));
}

TEST_F(HelpSession, KeysScrollTheTopic) {
  Start("0");
  // The smallest window scrolls the most.
  PlaceWindow({20, 20, 30, 30});
  const std::string top = AwaitSteadyPane();
  PressKey(VK_DOWN);
  const std::string line = AwaitOtherPane(top);
  PressKey(VK_NEXT);
  AwaitOtherPane(line);
  PressKey(VK_HOME);
  EXPECT_TRUE(program.Await([&] { return PanePixels() == top; }));
  PressKey(VK_END);
  AwaitOtherPane(top);
  EXPECT_TRUE(Photograph("help_smallest"));
}

TEST_F(HelpSession, WheelOfWindowsAndOfTheMouseDriverScrollTheTopic) {
  constexpr int kNotch = 120;
  constexpr UINT kWheelOfWindows = 0x020A;
  const UINT wheel_of_driver = RegisterWindowMessageA("MSWHEEL_ROLLMSG");
  Start("0");
  PlaceWindow({20, 20, 30, 30});
  const std::string top = AwaitSteadyPane();
  HWND const pane = program.Control("paneTopic");
  PostMessageA(pane, kWheelOfWindows, MAKEWPARAM(0, -kNotch), 0);
  const std::string below = AwaitOtherPane(top);
  PostMessageA(pane, wheel_of_driver, static_cast<WPARAM>(kNotch), 0);
  EXPECT_TRUE(program.Await([&] { return PanePixels() == top; }));
  PostMessageA(pane, wheel_of_driver, static_cast<WPARAM>(-kNotch), 0);
  EXPECT_TRUE(program.Await([&] { return PanePixels() == below; }));
  PostMessageA(pane, kWheelOfWindows, MAKEWPARAM(0, kNotch), 0);
  EXPECT_TRUE(program.Await([&] { return PanePixels() == top; }));
}

TEST_F(HelpSession, TabKeyGoesThroughEverythingInOrder) {
  Start("");
  ExpectKeyboardOn("lstContents");
  for (const char* const next : {"cmdCopy", "cmdPrint", "cmdFind", "cmdContents"}) {
    PressKeyWith(VK_SHIFT, VK_TAB);
    ExpectKeyboardOn(next);
  }
  for (const char* const next : {"cmdFind", "cmdPrint", "cmdCopy", "lstContents", "paneTopic"}) {
    PressKey(VK_TAB);
    ExpectKeyboardOn(next);
  }
  // Every topic is a link on this page; Tab has to pass all of them.
  for (int index = 0; index < book.Count(); ++index) PressKey(VK_TAB);
  ExpectKeyboardOn("paneTopic");
  PressKey(VK_TAB);
  ExpectKeyboardOn("cmdContents");
}

TEST_F(HelpSession, ContentsAreBrowsedByKeyboard) {
  Start("");
  ExpectKeyboardOn("lstContents");
  // In a list without a selection, the first key only selects the focused row, here a heading.
  PressKey(VK_END);
  EXPECT_TRUE(program.Await([this] { return Ask(program.Control("lstContents"), LB_GETCURSEL) == 0; }));
  PressKey(VK_END);
  EXPECT_TRUE(HasSelected(book.Count() - 1));
  PressKeyWith(VK_MENU, 'C');
  ExpectKeyboardOn("lstContents");
  EXPECT_TRUE(HasSelected(kContentsPage));
  EXPECT_TRUE(Photograph("help_contents"));
  ExpectTopic(kContentsPage);
  PressKey(VK_ESCAPE);
  EXPECT_EQ(program.WaitForExit(), 0);
}

TEST_F(HelpSession, WordIsFoundAndItsOccurrencesAreMarkedOneAfterTheOther) {
  Start("9");
  PressKeyWith(VK_MENU, 'F');
  ExpectKeyboardOn("txtWord");
  TypeText("memory");
  EXPECT_TRUE(program.Await([this] { return Ask(program.Control("lstFound"), LB_GETCOUNT) > 0; }));
  PressKey(VK_RETURN);
  ExpectKeyboardOn("lstFound");
  std::string first;
  EXPECT_TRUE(program.Await([&] {
    first = PanePixels();
    return first.find(kHighlight) != std::string::npos;
  }));
  EXPECT_TRUE(Photograph("help_find"));
  PressKey(VK_RETURN);
  AwaitOtherPane(first);
  PressKeyWith(VK_MENU, 'W');
  ExpectKeyboardOn("txtWord");
  TypeText("qqq");
  EXPECT_TRUE(program.Await([this] { return Ask(program.Control("lstFound"), LB_GETCOUNT) == 0; }));
  EXPECT_EQ(program.Text("lblFound"), "&Topics found: none");
}

TEST_F(HelpSession, CtrlCCopiesTheTopic) {
  Start("5");
  ExpectKeyboardOn("paneTopic");
  const DWORD before = GetClipboardSequenceNumber();
  PressKeyWith(VK_CONTROL, 'C');
  ExpectCopied(TopicOf(5), before);
}

TEST_F(HelpSession, LinkIsFollowedByPointer) {
  Start("");
  const RECT pane = program.ScreenRect("paneTopic");
  // The first link on the page of all topics is below its title and its first section heading.
  HWND const window = program.Control("paneTopic");
  bool is_followed = false;
  for (LONG top = 30; top < pane.bottom - pane.top && !is_followed; top += 6) {
    ASSERT_TRUE(ClickAt(window, {45, top}));
    is_followed = Eventually([this] { return program.IsEnabled("cmdBack"); }, 150);
  }
  EXPECT_TRUE(is_followed);
  ExpectTopic(0);
}

TEST_F(HelpSession, OneOfThreeStartedTogetherStays) {
  std::array<ShippedProgram, 3> viewers{ShippedProgram{HelpViewer()}, ShippedProgram{HelpViewer()},
                                        ShippedProgram{HelpViewer()}};
  for (ShippedProgram& viewer : viewers) ASSERT_TRUE(viewer.Start("5"));
  const auto running = [&] {
    return std::count_if(viewers.begin(), viewers.end(),
                         [](const ShippedProgram& viewer) { return viewer.IsRunning(); });
  };
  EXPECT_TRUE(Eventually([&] { return running() == 1 && HelpWindows().size() == 1; })) << running();
  EXPECT_FALSE(Eventually([&] { return running() != 1; }, kSecondViewerMs));
}

TEST_F(HelpSession, BothPanesFollowTheSizeOfTheWindow) {
  Start("4");
  const RECT pane = program.ScreenRect("paneTopic");
  const RECT list = program.ScreenRect("lstContents");
  RECT window = {};
  GetWindowRect(program.MainWindow(), &window);
  SetWindowPos(program.MainWindow(), nullptr, 0, 0, window.right - window.left + 120,
               window.bottom - window.top + 80, SWP_NOZORDER | SWP_ASYNCWINDOWPOS);
  EXPECT_TRUE(program.Await([&] {
    const RECT now = program.ScreenRect("paneTopic");
    return now.right - now.left > pane.right - pane.left + 60 &&
           now.bottom - now.top > pane.bottom - pane.top + 70;
  }));
  const RECT now = program.ScreenRect("lstContents");
  EXPECT_GT(now.bottom - now.top, list.bottom - list.top + 70);
  ExpectControlsInsideTheWindow(program);
  EXPECT_TRUE(Photograph("help_larger"));
}

TEST_F(HelpSession, PlaceSurvivesARestart) {
  Start("4");
  PlaceWindow({33, 44, 33 + 555, 44 + 366});
  CloseAndExpectEnd();
  EXPECT_EQ(TextsOf(kHelpSettings),
            (RegistryTexts{
                {"Left", "33"}, {"Top", "44"}, {"Width", "555"}, {"Height", "366"}, {"Maximised", "False"}}));
  Start("5");
  RECT window = {};
  GetWindowRect(program.MainWindow(), &window);
  const RECT expected{33, 44, 33 + 555, 44 + 366};
  EXPECT_TRUE(EqualRect(&window, &expected)) << window.left << " " << window.top;
}

TEST_F(HelpSession, StoredNonsenseDoesNoHarm) {
  for (const auto& [name, text] : RegistryTexts{
           {"Left", "-99999"}, {"Top", "99999"}, {"Width", "1"}, {"Height", "1E+99"}, {"Maximised", "x"}}) {
    SetRegistryText(kHelpSettings, name, text);
  }
  Start("4");
  ExpectControlsInsideTheWindow(program);
  RECT window = {};
  GetWindowRect(program.MainWindow(), &window);
  EXPECT_GE(window.left, 0);
  EXPECT_GE(window.top, 0);
  EXPECT_LE(window.bottom, 600);
  EXPECT_GT(window.right - window.left, 200);
  CloseAndExpectEnd();
  SetRegistryText(kHelpSettings, "Left", "here");
  Start("4");
  ExpectFitsOn640By480(program);
}

TEST_F(HelpSession, FirstWindowFitsOn640By480WithEveryControlInside) {
  Start("4");
  ExpectFitsOn640By480(program);
  ASSERT_GT(program.Controls().size(), 10U);
  ExpectControlsInsideTheWindow(program);
}

}  // namespace
}  // namespace qdix::e2e
