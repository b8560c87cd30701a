// The icon in the notification area: its record, its tip, the mouse on it, its menu.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr double kDoubleClick = 515 * ui::kTwipsPerPixel;
constexpr double kRightButton = 516 * ui::kTwipsPerPixel;
constexpr double kLeftButton = 513 * ui::kTwipsPerPixel;

/// Notes which menus were asked for, in place of a window that would show them.
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
    rig.Create();
    rig.program->Window().AttachFormPeer(&menus);
    rig.program->Tray().SetOwner(0x1234, 0x5678);
    rig.program->Start();
  }
  void MouseOnIcon(double x_twips) { rig.program->Window().PointerMoved(0, 0, x_twips, 0); }
  [[nodiscard]] const os::simulated::TrayRequest& Last() const { return rig.machine.TrayRequests().back(); }

  ProgramRig rig;
  MenuNotes menus;
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
  EXPECT_EQ(added.data.tip[6], ' ') << "the field is padded with blanks behind the text";
  EXPECT_EQ(added.data.tip[63], ' ');
}

TEST_F(Tray, TipShowsTheAvailableMemoryAsOfTheLastMouseMove) {
  rig.machine.SetMemory(64 * kMegabyte, 24012345, 1000, 1000);
  rig.AdvanceMs(7500);
  EXPECT_EQ(rig.machine.TrayRequests().size(), 1U) << "not continuously";
  MouseOnIcon(100);
  EXPECT_EQ(Last().request, os::kNimModify);
  EXPECT_EQ(Last().tip, "23.45 MB");
}

TEST_F(Tray, DoubleClickRestoresAHiddenWindow) {
  rig.program->Quondix().Command2.Press();
  EXPECT_FALSE(rig.program->Window().Shown());
  MouseOnIcon(kDoubleClick);
  EXPECT_TRUE(rig.program->Window().Shown());
}

TEST_F(Tray, DoubleClickRestoresAMinimisedWindow) {
  rig.program->Quondix().Command4.Press();
  EXPECT_EQ(rig.program->Window().State(), ui::WindowState::kMinimised);
  MouseOnIcon(kDoubleClick);
  EXPECT_EQ(rig.program->Window().State(), ui::WindowState::kNormal);
}

TEST_F(Tray, RightButtonOpensTheMenuAndALeftClickDoesNothing) {
  MouseOnIcon(kLeftButton);
  EXPECT_TRUE(menus.shown.empty());
  MouseOnIcon(kRightButton);
  EXPECT_EQ(menus.shown, (std::vector<std::string>{"mnuTray"}));
}

TEST_F(Tray, MenuHoldsItsEntriesInOrder) {
  std::vector<std::string> captions;
  for (const ui::MenuItem* item : rig.program->TheTrayMenu().mnuTray.Children())
    captions.push_back(item->Caption());
  EXPECT_EQ(captions, (std::vector<std::string>{"Free-up RAM", "-", "Display Q-DIX", "Hide", "-", "Close"}));
}

TEST_F(Tray, MenuFreesMemoryLikeTheButtonAlsoWhileTheButtonIsDisabled) {
  EXPECT_TRUE(rig.program->Quondix().List1.Choose("12 MB"));
  rig.program->Quondix().Command1.SetEnabled(false);
  rig.program->TheTrayMenu().mnuTrayFreeup.Choose();
  EXPECT_EQ(rig.machine.AllAllocations(), (std::vector<std::uint32_t>{12480001}));
  EXPECT_TRUE(rig.program->Quondix().Command1.Enabled());
}

TEST_F(Tray, MenuHidesShowsAndCloses) {
  auto& menu = rig.program->TheTrayMenu();
  menu.mnuTrayHide.Choose();
  EXPECT_FALSE(rig.program->Window().Shown());
  EXPECT_EQ(rig.machine.TrayIconCount(), 1) << "the icon stays";
  menu.mnuTrayDisplay.Choose();
  EXPECT_TRUE(rig.program->Window().Shown());
  menu.mnuTrayClose.Choose();
  EXPECT_TRUE(rig.program->Window().Unloaded());
}

TEST_F(Tray, CloseTakesTheIconAway) {
  rig.program->Window().Unload();
  EXPECT_EQ(Last().request, os::kNimDelete);
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
}

TEST_F(Tray, CloseInTheMiddleOfAReleaseTakesTheIconAway) {
  rig.machine.OnPump([&](int) { rig.program->Window().Unload(); });
  rig.program->Quondix().Command1.Press();
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
