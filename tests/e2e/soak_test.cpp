// The shipped exe after long use of its icon: thousands of tips, hundreds of menus, the window hidden and
// shown in between. QDIX_TIPS and QDIX_MENUS set the numbers.
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/held_resources.h"
#include "tests/e2e/session.h"
#include "tests/support/run_length.h"

namespace qdix::e2e {
namespace {

using tests::NumberFromEnvironment;

class SoakSession : public Session {
 protected:
  /// Sends what the taskbar reports when the pointer is on the icon.
  void PlayPointerOnIcon() const { Ask(program.MainWindow(), WM_MOUSEMOVE, 1, WM_MOUSEMOVE); }

  void OpenAndCloseMenu() const {
    PostMessageA(program.MainWindow(), WM_MOUSEMOVE, 1, WM_RBUTTONDOWN);
    ASSERT_TRUE(program.Await([this] { return program.OpenMenus().size() == 1; }));
    ASSERT_TRUE(program.Await([this] {
      PressKey(VK_ESCAPE);
      return program.OpenMenus().empty();
    }));
  }

  void HideAndShow() const {
    program.Press("Command2");
    ASSERT_TRUE(program.Await([this] { return IsWindowVisible(program.MainWindow()) == 0; }));
    Ask(program.MainWindow(), WM_MOUSEMOVE, 1, WM_LBUTTONDBLCLK);
    ASSERT_TRUE(program.Await([this] { return IsWindowVisible(program.MainWindow()) != 0; }));
  }

  void UseIcon(unsigned long tips, unsigned long menus) const {
    for (unsigned long menu = 1; menu <= menus; ++menu) {
      for (unsigned long tip = 0; tip < tips / menus; ++tip) PlayPointerOnIcon();
      OpenAndCloseMenu();
      if (menu % 10 == 0) HideAndShow();
      if (HasFatalFailure()) return;
    }
  }
};

TEST_F(SoakSession, TipsAndMenusLeaveNothingBehind) {
  MarkMachineAsKnown();
  StartProgram();
  // Objects created at the first use stay.
  UseIcon(50, 10);
  const HeldResources held(program);
  UseIcon(NumberFromEnvironment("QDIX_TIPS", 1000), NumberFromEnvironment("QDIX_MENUS", 20));
  held.ExpectNoMoreNow();
  EXPECT_TRUE(program.HasIcon());
  EXPECT_TRUE(program.MessageBoxes().empty());
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
