// A second start of the shipped exe, whatever the state of the first copy's window: the window comes up and
// works.
#include "screens/main_window.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/notification_area.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

class SecondStartSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }

  [[nodiscard]] bool IsShown() const { return IsWindowVisible(program.MainWindow()) != 0; }
  [[nodiscard]] bool IsMinimised() const { return IsIconic(program.MainWindow()) != 0; }

  void Minimise() {
    program.Press("Command4");
    ASSERT_TRUE(program.Await([this] { return IsMinimised(); }));
  }
  /// Chooses "Hide" in the icon's menu, which can also hide a minimised window.
  void HideByTheIcon() {
    ASSERT_TRUE(PressIcon(Press::kRight));
    ASSERT_TRUE(program.Await([this] { return program.OpenMenus().size() == 1; }));
    for (int entry = 0; entry < 3; ++entry) PressKey(VK_DOWN);  // the arrow key skips separators
    PressKey(VK_RETURN);
    ASSERT_TRUE(program.Await([this] { return !IsShown(); }));
  }
  void StartAgain() {
    ShippedProgram second;
    ASSERT_TRUE(second.Start());
    EXPECT_EQ(second.WaitForExit(), 0);
  }
  void ExpectInFront() const {
    EXPECT_TRUE(program.Await([this] { return IsShown() && !IsMinimised(); }));
    EXPECT_TRUE(program.Await([this] { return GetForegroundWindow() == program.MainWindow(); }));
  }
  /// Clicks the third of the four tabs in the front row, which leads to "Time Intervals" as long as the first
  /// tab is open. The page is the evidence: the strip alone would switch by itself.
  void ExpectTabsAnswer() const {
    const RECT strip = program.ScreenRect("SSTab1");
    const RECT page = program.ScreenRect("QuondixPage");
    ASSERT_TRUE(ClickAt(program.Control("SSTab1"),
                        {(strip.right - strip.left) * 5 / 8, (page.top - strip.top) * 3 / 4}));
    EXPECT_TRUE(program.Await([this] { return program.IsVisible("TimeIntervalsPage"); }));
    EXPECT_EQ(program.OpenedTab(), screens::kTimeIntervalsTab);
    EXPECT_TRUE(program.IsVisible("lstTime"));
  }
  void ExpectASecondStartBringsUpAWindowThatWorks(const char* picture) {
    const ProgramRegistry before;
    StartAgain();
    ExpectInFront();
    EXPECT_TRUE(ProgramRegistry() == before) << "the second copy changed a setting";
    ExpectTabsAnswer();
    EXPECT_TRUE(Photograph(picture));
    EXPECT_TRUE(program.HasIcon());
    CloseProgram();
  }
};

TEST_F(SecondStartSession, HiddenWindow) {
  StartProgram();
  program.Press("Command2");
  ASSERT_TRUE(program.Await([this] { return !IsShown(); }));
  ExpectASecondStartBringsUpAWindowThatWorks("second_start_hidden");
}

TEST_F(SecondStartSession, MinimisedWindow) {
  StartProgram();
  Minimise();
  ExpectASecondStartBringsUpAWindowThatWorks("second_start_minimised");
}

TEST_F(SecondStartSession, MinimisedAndHiddenWindow) {
  StartProgram();
  Minimise();
  HideByTheIcon();
  ExpectASecondStartBringsUpAWindowThatWorks("second_start_minimised_hidden");
}

TEST_F(SecondStartSession, WindowThatStartedHidden) {
  SetRegistryText(kStartup, "StartDisplay", "3");
  ASSERT_TRUE(program.Start());
  ASSERT_TRUE(program.WaitForFirstReading());
  ASSERT_FALSE(IsShown());
  ExpectASecondStartBringsUpAWindowThatWorks("second_start_started_hidden");
}

TEST_F(SecondStartSession, WindowThatStartedMinimised) {
  SetRegistryText(kStartup, "StartDisplay", "2");
  ASSERT_TRUE(program.Start());
  ASSERT_TRUE(program.WaitForFirstReading());
  ASSERT_TRUE(IsMinimised());
  ExpectASecondStartBringsUpAWindowThatWorks("second_start_started_minimised");
}

TEST_F(SecondStartSession, RestoredWindowIsHiddenAndRestoredAgain) {
  StartProgram();
  for (int round = 0; round < 2; ++round) {
    program.Press("Command2");
    ASSERT_TRUE(program.Await([this] { return !IsShown(); }));
    StartAgain();
    ExpectInFront();
  }
  ExpectTabsAnswer();
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
