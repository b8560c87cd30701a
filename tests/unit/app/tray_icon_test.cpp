// The icon in the notification area: its record, its tip, the mouse on it, its menu.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr double kDoubleClick = 515 * ui::kTwipsPerPixel;
constexpr double kRightButton = 516 * ui::kTwipsPerPixel;
constexpr double kLeftButton = 513 * ui::kTwipsPerPixel;

/// Records which menus were requested, in place of a window that would show them.
class MenuNotes final : public ui::FormPeer {
 public:
  void PopUp(ui::MenuItem& menu) override { shown.push_back(std::string(menu.Name())); }
  void FormUnloaded() override {}
  std::vector<std::string> shown;
};

class Tray : public testing::Test {
 protected:
  void SetUp() override {
    rig.SetHasRunBefore();
    Launch();
  }
  void Launch() {
    rig.Create();
    rig.program->Form().AttachFormPeer(&menus);
    rig.program->TrayIcon().SetOwner(0x1234, 0x5678);
    rig.program->Start();
  }
  void MouseOnIcon(double x_twips) { rig.program->Form().PointerMoved(0, 0, x_twips, 0); }
  [[nodiscard]] const os::simulated::TrayRequest& Last() const { return rig.machine.TrayRequests().back(); }

  ProgramRig rig;
  MenuNotes menus;
};

/// The taskbar is not ready yet when the program starts.
class TrayAtLogOn : public Tray {
 protected:
  void SetUp() override {
    rig.machine.FailNextCall("Shell_NotifyIconA");
    Tray::SetUp();
  }
};

TEST_F(Tray, IconIsAddedOnceAtLoadWithItsWholeRecord) {
  ASSERT_EQ(rig.machine.TrayRequests().size(), 1U);
  const auto& added = rig.machine.TrayRequests()[0];
  EXPECT_EQ(added.request, os::kNimAdd);
  EXPECT_EQ(added.data.size_bytes, 88U);
  EXPECT_EQ(added.data.owner, 0x1234U);
  EXPECT_EQ(added.data.id, 1U);
  EXPECT_EQ(added.data.flags, 7U);
  EXPECT_EQ(added.data.callback_message, 512U);
  EXPECT_EQ(added.data.icon, 0x5678U);
  EXPECT_EQ(added.tip, "Q-DIX");
  EXPECT_EQ(added.data.tip[5], '\0');
  EXPECT_EQ(added.data.tip[6], ' ') << "the field is padded with blanks after the text";
  EXPECT_EQ(added.data.tip[63], ' ');
}

TEST_F(Tray, TipShowsTheAvailableMemoryAsOfTheLastMouseMove) {
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1000);
  rig.AdvanceMs(7500);
  EXPECT_EQ(rig.machine.TrayRequests().size(), 1U) << "the tip is not refreshed continuously";
  MouseOnIcon(100);
  EXPECT_EQ(Last().request, os::kNimModify);
  EXPECT_EQ(Last().tip, "23.45 MB");
}

TEST_F(Tray, DoubleClickRestoresAHiddenWindow) {
  rig.program->QuondixScreen().Command2.Press();
  EXPECT_FALSE(rig.program->Form().Shown());
  MouseOnIcon(kDoubleClick);
  EXPECT_TRUE(rig.program->Form().Shown());
}

TEST_F(Tray, DoubleClickRestoresAMinimisedWindow) {
  rig.program->QuondixScreen().Command4.Press();
  EXPECT_EQ(rig.program->Form().State(), ui::WindowState::kMinimised);
  MouseOnIcon(kDoubleClick);
  EXPECT_EQ(rig.program->Form().State(), ui::WindowState::kNormal);
}

TEST_F(Tray, WindowRestoredByAnotherProgramWorksAsAfterDisplay) {
  auto& program = *rig.program;
  program.QuondixScreen().Command3.Press();
  program.QuondixScreen().Command4.Press();
  program.TrayMenu().mnuTrayHide.Choose();
  program.Form().UserChangedState(ui::WindowState::kNormal);
  program.Form().UserChangedVisible(true);
  EXPECT_TRUE(program.MainWindow().Timer1.Enabled()) << "every activation starts the display";
  program.MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  EXPECT_EQ(program.MainWindow().SSTab1.Tab(), screens::kStartupTab);
  program.Form().UserChangedVisible(false);
  program.MainWindow().SSTab1.ChooseTab(screens::kAboutTab);
  EXPECT_EQ(program.MainWindow().SSTab1.Tab(), screens::kStartupTab) << "a user cannot reach a hidden window";
}

TEST_F(Tray, RightButtonOpensTheMenuAndALeftClickDoesNothing) {
  MouseOnIcon(kLeftButton);
  EXPECT_TRUE(menus.shown.empty());
  MouseOnIcon(kRightButton);
  EXPECT_EQ(menus.shown, (std::vector<std::string>{"mnuTray"}));
}

TEST_F(Tray, EntryWithTheEffectOfADoubleClickIsTheDefault) {
  for (const ui::MenuItem* item : rig.program->TrayMenu().mnuTray.Children()) {
    EXPECT_EQ(item->IsDefault(), item->Caption() == "Display Q-DIX") << item->Caption();
  }
}

TEST_F(Tray, MenuHoldsItsEntriesInOrder) {
  std::vector<std::string> captions;
  for (const ui::MenuItem* item : rig.program->TrayMenu().mnuTray.Children())
    captions.push_back(item->Caption());
  EXPECT_EQ(captions, (std::vector<std::string>{"Free-up RAM", "-", "Display Q-DIX", "Hide", "-", "Programs",
                                                "-", "Close"}));
  EXPECT_EQ(rig.program->TrayMenu().mnuTrayBar.Name(), "mnuTrayBar");
  EXPECT_EQ(rig.program->TrayMenu().mnuTrayBar2.Name(), "mnuTrayBar2");
  EXPECT_EQ(rig.program->TrayMenu().mnuTrayBar3.Name(), "mnuTrayBar3");
}

TEST_F(Tray, EmptyListMeansTwentyFiveHiddenEntriesInADisabledSubmenu) {
  const ui::MenuItem& programs = rig.program->TrayMenu().mnuPrograms;
  EXPECT_FALSE(programs.Enabled());
  ASSERT_EQ(programs.Children().size(), 25U);
  EXPECT_TRUE(programs.Children()[0]->Visible()) << "a submenu always shows one entry";
  for (std::size_t index = 1; index < 25; ++index) EXPECT_FALSE(programs.Children()[index]->Visible());
}

TEST_F(Tray, SingleClicksAndMovesLeaveAHiddenWindowHidden) {
  rig.program->QuondixScreen().Command2.Press();
  MouseOnIcon(kLeftButton);
  MouseOnIcon(512 * ui::kTwipsPerPixel);
  EXPECT_FALSE(rig.program->Form().Shown());
}

TEST_F(Tray, PointerOverThatPixelOfTheWindowCountsAsAClick) {
  rig.program->Form().PointerMoved(0, 0, 516 * ui::kTwipsPerPixel, 300);
  EXPECT_EQ(menus.shown, (std::vector<std::string>{"mnuTray"}));
}

TEST_F(TrayAtLogOn, RefusedAddIsRetriedAtTheNextRefreshAndThenNoMore) {
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
  rig.AdvanceMs(kRefreshMs);
  EXPECT_EQ(rig.machine.TrayIconCount(), 1);
  const std::size_t asked = rig.machine.TrayRequests().size();
  rig.AdvanceMs(10 * kRefreshMs);
  EXPECT_EQ(rig.machine.TrayRequests().size(), asked);
}

TEST_F(TrayAtLogOn, RefusedAddIsRetriedEvenIfTheRefreshFails) {
  rig.machine.SetMemory(0, 512 * kMegabyte, 0x7FFFFFFFU, 0xFFFFFFFEU);  // reported in a box, not displayed
  int icons_in_box = -1;
  rig.machine.WhileBoxIsOpen([&] { icons_in_box = rig.machine.TrayIconCount(); });
  rig.AdvanceMs(kRefreshMs);
  EXPECT_EQ(icons_in_box, 1);
}

TEST_F(TrayAtLogOn, RefusedAddIsAlsoRetriedWhilePaused) {
  rig.program->QuondixScreen().Command3.Press();
  rig.AdvanceMs(64999);
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
  rig.AdvanceMs(1);
  EXPECT_EQ(rig.machine.TrayIconCount(), 1);
}

TEST_F(Tray, SilentNewTaskbarGetsTheIconWithinAMinute) {
  const os::WindowHandle first = rig.machine.OpenWindow("Shell_TrayWnd", "");
  rig.AdvanceMs(65000);
  rig.machine.CloseWindow(first);
  rig.machine.ClearTrayIcons();
  rig.AdvanceMs(65000);
  EXPECT_EQ(rig.machine.TrayIconCount(), 0) << "there is no taskbar yet";
  rig.machine.OpenWindow("Shell_TrayWnd", "");
  rig.AdvanceMs(65000);
  EXPECT_EQ(rig.machine.TrayIconCount(), 1);
}

TEST_F(Tray, AnnouncedNewTaskbarGetsTheIconAtOnceAndNotTwice) {
  rig.machine.OpenWindow("Shell_TrayWnd", "");
  rig.machine.ClearTrayIcons();
  rig.program->TrayIcon().AddToTray();
  EXPECT_EQ(rig.machine.TrayIconCount(), 1);
  const std::size_t asked = rig.machine.TrayRequests().size();
  rig.AdvanceMs(2 * 65000);
  EXPECT_EQ(rig.machine.TrayRequests().size(), asked);
}

TEST_F(Tray, ClosedProgramNeverAddsTheIconAgain) {
  rig.program->Form().Unload();
  rig.machine.OpenWindow("Shell_TrayWnd", "");
  rig.program->TrayIcon().AddToTray();
  rig.program->TrayIcon().RetryAdd();
  rig.program->TrayIcon().LookForTaskbar();
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
}

TEST_F(Tray, MenuFreesMemoryLikeTheButtonAlsoWhileTheButtonIsDisabled) {
  EXPECT_TRUE(rig.program->QuondixScreen().List1.Choose("12 MB"));
  rig.program->QuondixScreen().Command1.SetEnabled(false);
  rig.program->TrayMenu().mnuTrayFreeup.Choose();
  EXPECT_EQ(rig.machine.AllAllocations(), (std::vector<std::uint32_t>{12480001}));
  EXPECT_TRUE(rig.program->QuondixScreen().Command1.Enabled());
}

TEST_F(Tray, MenuHidesShowsAndCloses) {
  auto& menu = rig.program->TrayMenu();
  menu.mnuTrayHide.Choose();
  EXPECT_FALSE(rig.program->Form().Shown());
  EXPECT_EQ(rig.machine.TrayIconCount(), 1) << "the icon stays";
  menu.mnuTrayDisplay.Choose();
  EXPECT_TRUE(rig.program->Form().Shown());
  menu.mnuTrayClose.Choose();
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(Tray, CloseRemovesTheIcon) {
  rig.program->Form().Unload();
  EXPECT_EQ(Last().request, os::kNimDelete);
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
}

TEST_F(Tray, CloseInTheMiddleOfAReleaseRemovesTheIcon) {
  rig.machine.OnPump([&](int) { rig.program->Form().Unload(); });
  rig.program->QuondixScreen().Command1.Press();
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
}

TEST(TrayOfASecondCopy, NeverHasAnIcon) {
  ProgramRig rig;
  rig.machine.SetOtherCopyRunning(true);
  rig.Start();
  EXPECT_TRUE(rig.machine.TrayRequests().empty());
}

}  // namespace
}  // namespace qdix::tests
