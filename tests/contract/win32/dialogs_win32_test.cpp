// Message boxes of the real system and the window that owns them.
#include "tests/contract/win32/detour.h"
#include "tests/contract/win32/win32_contract_machine.h"

namespace qdix::contract {
namespace {

class DialogsWin32 : public testing::Test {
 protected:
  HWND OpenMainWindow() {
    HWND window = reinterpret_cast<HWND>(machine.OpenWindow("QdixContractMain", "Main"));
    machine.GetWin32System().SetMainWindow(window);
    return window;
  }
  int ShowBox() { return machine.GetSystem().dialogs.MessageBoxA("Text", "Title", os::kMbOk); }

  Win32ContractMachine machine;
};

TEST_F(DialogsWin32, BoxBelongsToTheMainWindowAndDisablesIt) {
  HWND main = OpenMainWindow();
  HWND owner = nullptr;
  bool was_enabled = true;
  machine.DoToNextBox([&](HWND box) {
    owner = GetWindow(box, GW_OWNER);
    was_enabled = IsWindowEnabled(main) != FALSE;
    PostMessageA(box, WM_COMMAND, IDOK, 0);
  });
  EXPECT_EQ(ShowBox(), os::kIdOk);
  EXPECT_EQ(owner, main);
  EXPECT_FALSE(was_enabled);
  EXPECT_TRUE(IsWindowEnabled(main));
}

TEST_F(DialogsWin32, HandlersRunWhileABoxIsOpen) {
  OpenMainWindow();
  int runs = 0;
  machine.DoToNextBox([&](HWND box) {
    machine.DoInNextPump([&runs, box] {
      ++runs;
      PostMessageA(box, WM_COMMAND, IDOK, 0);
    });
  });
  EXPECT_EQ(ShowBox(), os::kIdOk);
  EXPECT_EQ(runs, 1);
}

TEST_F(DialogsWin32, BoxOfAHiddenWindowComesToTheForeground) {
  ShowWindow(OpenMainWindow(), SW_HIDE);
  HWND foreground = nullptr;
  HWND shown = nullptr;
  machine.DoToNextBox([&](HWND box) {
    shown = box;
    foreground = GetForegroundWindow();
    PostMessageA(box, WM_COMMAND, IDOK, 0);
  });
  EXPECT_EQ(ShowBox(), os::kIdOk);
  EXPECT_NE(shown, nullptr);
  EXPECT_EQ(foreground, shown);
}

UINT& FlagsSeen() {
  static UINT flags = 0;
  return flags;
}

int WINAPI RecordingMessageBox(HWND /*owner*/, const char* /*text*/, const char* /*title*/, UINT flags) {
  FlagsSeen() = flags;
  return IDOK;
}

/// Windows 98 and later do not let a background program come to the foreground. Wine ignores this flag, so
/// the test looks at the call and not at the box.
TEST_F(DialogsWin32, BoxStaysAboveAllOtherWindowsInAnyStateOfItsOwner) {
  HWND main = OpenMainWindow();
  const Detour noted("MessageBoxA", reinterpret_cast<const void*>(&RecordingMessageBox), "user32.dll");
  for (const int way : {SW_SHOW, SW_HIDE, SW_SHOWMINNOACTIVE}) {
    ShowWindow(main, way);
    FlagsSeen() = 0;
    EXPECT_EQ(ShowBox(), os::kIdOk);
    EXPECT_NE(FlagsSeen() & MB_TOPMOST, 0U) << way;
  }
}

TEST_F(DialogsWin32, BoxOverABoxClosesWithIt) {
  OpenMainWindow();
  int inner = -1;
  machine.DoToNextBox([&](HWND) {
    machine.StopInNextBox();
    inner = ShowBox();
  });
  EXPECT_EQ(ShowBox(), os::kIdNone);
  EXPECT_EQ(inner, os::kIdNone);
  EXPECT_EQ(machine.Boxes().size(), 2U);
}

TEST_F(DialogsWin32, BoxThatCannotBeShownIsUnanswered) {
  const os::WindowHandle closed = machine.OpenWindow("QdixContractMain", "Main");
  machine.GetWin32System().SetMainWindow(reinterpret_cast<HWND>(closed));
  machine.CloseWindow(closed);
  EXPECT_EQ(ShowBox(), os::kIdNone);
}

}  // namespace
}  // namespace qdix::contract
