// The icon of the shipped exe in the notification area, under the real pointer, and its menu.
#include "tests/e2e/driver/fake_memory.h"
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/driver/notification_area.h"
#include "tests/e2e/driver/popup_menu.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

/// Available bytes that the program shows as 75.1 MB and as 50 MB.
constexpr std::uint32_t kBytesOf75Point1Mb = 76902400;
constexpr std::uint32_t kBytesOf50Mb = 51200000;

const std::vector<std::string> kMenuEntries{"Free-up RAM", kSeparator, "Display Q-DIX", "Hide",
                                            kSeparator,    "Programs", kSeparator,      "Close"};

class TraySession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }

  void StartAndHide() {
    StartProgram();
    program.Press("Command2");
    ASSERT_TRUE(program.Await([this] { return !IsShown(); }));
  }
  void StartAndMinimise() {
    StartProgram();
    program.Press("Command4");
    ASSERT_TRUE(program.Await([this] { return IsMinimised(); }));
  }
  [[nodiscard]] bool IsShown() const { return IsWindowVisible(program.MainWindow()) != 0; }
  [[nodiscard]] bool IsMinimised() const { return IsIconic(program.MainWindow()) != 0; }
  [[nodiscard]] bool IsInFront() const { return GetForegroundWindow() == program.MainWindow(); }

  void OpenMenu() {
    ASSERT_TRUE(PressIcon(Press::kRight));
    ASSERT_TRUE(program.Await([this] { return program.OpenMenus().size() == 1; }));
  }
  void CloseMenu() {
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(program.Await([this] { return program.OpenMenus().empty(); }));
  }
  /// Moves down the open menu with the arrow key, which skips separators, and presses Enter.
  static void ChooseByKeyboard(const std::string& entry) {
    for (const std::string& passed : kMenuEntries) {
      if (passed != kSeparator) PressKey(VK_DOWN);
      if (passed == entry) break;
    }
    PressKey(VK_RETURN);
  }
  /// Clicks `down_px` below the upper edge of the open menu.
  void ChooseByPointer(int down_px) const {
    const HWND menu = program.OpenMenus().front();
    RECT rect = {};
    GetWindowRect(menu, &rect);
    ASSERT_TRUE(PressAt(menu, {(rect.right - rect.left) / 2, down_px}, Press::kLeft));
  }
  [[nodiscard]] int MenuHeight() const {
    RECT rect = {};
    GetWindowRect(program.OpenMenus().front(), &rect);
    return static_cast<int>(rect.bottom - rect.top);
  }
  void BeginToStartWithManyPasses() {
    SetRegistryText(kSettings, "TryTimes", "1000");
    StartProgram();
    ASSERT_TRUE(program.Choose("List1", "8 MB"));
    ASSERT_TRUE(program.IsEnabled("Command1"));
  }
  void ExpectTip(const std::string& text) const {
    EXPECT_TRUE(program.Await([&] { return IconTip() == text; })) << "the open tip: " << IconTip();
  }

  /// Distance from the edge of the menu to a point inside its entry.
  static constexpr int kIntoEntryPx = 10;
};

TEST_F(TraySession, IconIsDrawnFromTheStartToTheEnd) {
  EXPECT_FALSE(IconIsDrawn());
  StartProgram();
  EXPECT_TRUE(program.HasIcon());
  EXPECT_TRUE(program.Await([] { return IconIsDrawn(); }));
  CloseProgram();
  EXPECT_TRUE(Eventually([] { return !IconIsDrawn(); }));
}

TEST_F(TraySession, PointerOnTheIconRefreshesTheTipWithTheFigureOfTheCaption) {
  StartProgram();
  FakeMemory memory(program.Process());
  ASSERT_TRUE(memory.SetAvailable(kBytesOf75Point1Mb));
  ASSERT_TRUE(program.Await([this] { return program.Caption() == "75.1 MB   Q-DIX"; })) << program.Caption();
  ASSERT_TRUE(PointAtIcon());
  ExpectTip("75.1 MB");
  ASSERT_TRUE(memory.SetAvailable(kBytesOf50Mb));
  ASSERT_TRUE(PointAtIcon());
  ExpectTip("50 MB");
  CloseProgram();
}

TEST_F(TraySession, SingleLeftClickDoesNothing) {
  StartAndHide();
  ASSERT_TRUE(PressIcon(Press::kLeft));
  // The icon's messages are handled in order: once the menu is open, the click has been handled.
  OpenMenu();
  EXPECT_FALSE(IsShown());
  CloseMenu();
  EXPECT_FALSE(IsShown());
  CloseProgram();
}

TEST_F(TraySession, DoubleClickShowsTheHiddenWindow) {
  StartAndHide();
  ASSERT_TRUE(PressIcon(Press::kLeftTwice));
  EXPECT_TRUE(program.Await([this] { return IsShown() && !IsMinimised() && IsInFront(); }));
  CloseProgram();
}

TEST_F(TraySession, DoubleClickRestoresTheMinimisedWindow) {
  StartAndMinimise();
  ASSERT_TRUE(PressIcon(Press::kLeftTwice));
  EXPECT_TRUE(program.Await([this] { return IsShown() && !IsMinimised() && IsInFront(); }));
  CloseProgram();
}

TEST_F(TraySession, RightClickOpensTheMenuWithItsEntriesInOrder) {
  StartProgram();
  OpenMenu();
  const MenuText menu = ReadMenu(program.Process(), program.OpenMenus().front());
  EXPECT_EQ(menu.entries, kMenuEntries);
  EXPECT_EQ(menu.default_entry, "Display Q-DIX");
  EXPECT_TRUE(Photograph("tray_menu"));
  CloseMenu();
  CloseProgram();
}

TEST_F(TraySession, OnlyOneMenuOpensAtATime) {
  StartProgram();
  OpenMenu();
  // Wine gives the open menu the pointer wherever it is, so the icon's second message is sent from here.
  Ask(program.MainWindow(), WM_MOUSEMOVE, 1, WM_RBUTTONDOWN);
  EXPECT_EQ(program.OpenMenus().size(), 1U);
  CloseMenu();
  CloseProgram();
}

TEST_F(TraySession, EscapeClosesTheMenuAndTheProgramKeepsRunning) {
  StartProgram();
  OpenMenu();
  CloseMenu();
  EXPECT_TRUE(IsShown());
  FakeMemory memory(program.Process());
  ASSERT_TRUE(memory.SetAvailable(kBytesOf50Mb));
  EXPECT_TRUE(program.Await([this] { return program.Caption() == "50 MB   Q-DIX"; }));
  OpenMenu();
  CloseMenu();
  CloseProgram();
}

TEST_F(TraySession, FiguresAreRefreshedWhileTheMenuIsOpen) {
  StartProgram();
  OpenMenu();
  FakeMemory memory(program.Process());
  ASSERT_TRUE(memory.SetAvailable(kBytesOf50Mb));
  EXPECT_TRUE(program.Await([this] { return program.Caption() == "50 MB   Q-DIX"; }));
  EXPECT_EQ(program.OpenMenus().size(), 1U);
  CloseMenu();
  CloseProgram();
}

TEST_F(TraySession, HideHidesTheWindowAndKeepsTheIcon) {
  StartProgram();
  OpenMenu();
  ChooseByKeyboard("Hide");
  EXPECT_TRUE(program.Await([this] { return !IsShown(); }));
  EXPECT_TRUE(program.HasIcon());
  EXPECT_TRUE(IconIsDrawn());
  CloseProgram();
}

TEST_F(TraySession, DisplayShowsTheHiddenWindow) {
  StartAndHide();
  OpenMenu();
  ChooseByKeyboard("Display Q-DIX");
  EXPECT_TRUE(program.Await([this] { return IsShown() && IsInFront(); }));
  CloseProgram();
}

TEST_F(TraySession, DisplayRestoresTheMinimisedWindow) {
  StartAndMinimise();
  OpenMenu();
  ChooseByKeyboard("Display Q-DIX");
  EXPECT_TRUE(program.Await([this] { return !IsMinimised() && IsInFront(); }));
  CloseProgram();
}

TEST_F(TraySession, FreeUpRamBeginsARelease) {
  BeginToStartWithManyPasses();
  OpenMenu();
  ChooseByKeyboard("Free-up RAM");
  EXPECT_TRUE(program.Await([this] { return !program.IsEnabled("Command1"); }));
  CloseProgram();
}

TEST_F(TraySession, FreeUpRamUnderThePointerBeginsARelease) {
  BeginToStartWithManyPasses();
  OpenMenu();
  ChooseByPointer(kIntoEntryPx);
  EXPECT_TRUE(program.Await([this] { return !program.IsEnabled("Command1"); }));
  CloseProgram();
}

TEST_F(TraySession, CloseEndsTheProgramWithTheWindowHidden) {
  StartAndHide();
  OpenMenu();
  ChooseByKeyboard("Close");
  ExpectCleanEnd(program);
}

TEST_F(TraySession, CloseUnderThePointerEndsTheProgram) {
  StartProgram();
  OpenMenu();
  ChooseByPointer(MenuHeight() - kIntoEntryPx);
  ExpectCleanEnd(program);
}

TEST_F(TraySession, ProgramClosesWhileTheMenuIsOpen) {
  StartProgram();
  OpenMenu();
  CloseProgram();
}

/// Wine's taskbar and desktop are one process: ending it takes every window off the screen, and no other
/// process replaces it. So the test removes the icon from outside and sends the message that a new taskbar
/// broadcasts.
TEST_F(TraySession, IconComesBackWithANewTaskbar) {
  StartProgram();
  ASSERT_TRUE(program.TakeIcon());
  ASSERT_FALSE(program.HasIcon());
  ASSERT_TRUE(Eventually([] { return !IconIsDrawn(); }));
  PostMessageA(HWND_BROADCAST, RegisterWindowMessageA("TaskbarCreated"), 0, 0);
  EXPECT_TRUE(program.Await([this] { return program.HasIcon() && IconIsDrawn(); }));
  OpenMenu();
  CloseMenu();
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
