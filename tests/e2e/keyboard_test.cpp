// The shipped exe under the real keyboard.
#include <algorithm>

#include "tests/e2e/driver/hand.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

class KeyboardSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }

  void StartInFront() {
    StartProgram();
    ASSERT_TRUE(BringForward(program.MainWindow()));
  }
  void PutKeyboardOn(const std::string& name) {
    ASSERT_TRUE(Click(program.Control(name)));
    ExpectKeyboardOn(name);
  }
  void ExpectKeyboardOn(const std::string& name) {
    EXPECT_TRUE(program.Await([&] { return program.FocusedControl() == name; }))
        << name << " expected, " << program.FocusedControl() << " has the keyboard";
  }
};

TEST_F(KeyboardSession, TabKeyMovesThroughTheQuondixTabInOrderAndBack) {
  StartInFront();
  PutKeyboardOn("List1");
  const std::vector<std::string> order{"Text1",    "VScroll1",  "Command1", "Command3", "Command4",
                                       "Command2", "Command21", "SSTab1",   "List1"};
  for (const std::string& name : order) {
    PressKey(VK_TAB);
    ExpectKeyboardOn(name);
  }
  for (auto name = order.rbegin() + 1; name != order.rend(); ++name) {
    PressKeyWith(VK_SHIFT, VK_TAB);
    ExpectKeyboardOn(*name);
  }
  CloseProgram();
}

TEST_F(KeyboardSession, AltFFreesUpMemory) {
  SetRegistryText(kSettings, "TryTimes", "1000");
  StartInFront();
  ASSERT_TRUE(program.Choose("List1", "8 MB"));
  EXPECT_EQ(program.Text("Command1"), "&Free Up RAM Now");
  PressKeyWith(VK_MENU, 'F');
  EXPECT_TRUE(program.Await([&] { return !program.IsEnabled("Command1"); }));
  CloseProgram();
}

TEST_F(KeyboardSession, EnterPressesTheReleaseButtonFromATextBox) {
  SetRegistryText(kSettings, "TryTimes", "1000");
  StartInFront();
  ASSERT_TRUE(program.Choose("List1", "8 MB"));
  PutKeyboardOn("Text1");
  PressKey(VK_RETURN);
  EXPECT_TRUE(program.Await([&] { return !program.IsEnabled("Command1"); }));
  CloseProgram();
}

TEST_F(KeyboardSession, AltAGoesToTheListOfAmountsAndArrowsChoose) {
  StartInFront();
  PutKeyboardOn("Text1");
  ASSERT_TRUE(program.Choose("List1", "24 MB"));
  PressKeyWith(VK_MENU, 'A');
  ExpectKeyboardOn("List1");
  PressKey(VK_DOWN);
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "FreeUpRAM") == "28"; }));
  PressKey(VK_UP);
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "FreeUpRAM") == "24"; }));
  CloseProgram();
}

TEST_F(KeyboardSession, AltMMinimisesAndAltHHides) {
  StartInFront();
  PressKeyWith(VK_MENU, 'M');
  EXPECT_TRUE(program.Await([&] { return IsIconic(program.MainWindow()) != 0; }));
  ShowWindowAsync(program.MainWindow(), SW_RESTORE);
  ASSERT_TRUE(program.Await([&] { return IsIconic(program.MainWindow()) == 0; }));
  ASSERT_TRUE(BringForward(program.MainWindow()));
  PressKeyWith(VK_MENU, 'H');
  EXPECT_TRUE(program.Await([&] { return IsWindowVisible(program.MainWindow()) == 0; }));
  CloseProgram();
}

TEST_F(KeyboardSession, ControlTabMovesThroughAllTabsAndBack) {
  StartInFront();
  PutKeyboardOn("List1");
  for (const int tab : {1, 2, 3, 4, 5, 6, 7, 0}) {
    PressKeyWith(VK_CONTROL, VK_TAB);
    EXPECT_TRUE(program.Await([&] { return program.OpenedTab() == tab; })) << tab;
  }
  PressKeyWith(VK_CONTROL, VK_PRIOR);
  EXPECT_TRUE(program.Await([&] { return program.OpenedTab() == 7; }));
  CloseProgram();
}

/// Skips what is disabled at the start, and all options of a group except the selected one.
TEST_F(KeyboardSession, TabKeyReachesEveryControlOfEachTabInReadingOrder) {
  const std::vector<std::vector<std::string>> orders{
      {"List1", "Text1", "VScroll1", "Command1", "Command3", "Command4", "Command2", "Command21"},
      {"Check1", "Text2", "VScroll2", "List2", "List4", "Check9", "Text9", "Command7", "Command22"},
      {"Check3", "lstTime", "Option4", "List3", "Check10", "Text10", "Command23"},
      {"Check2", "Command5", "Combo1", "Text3", "VScroll3", "Option1", "Slider7", "Check4", "Command24"},
      {"List5", "Command15", "Option9", "Slider_6(0)", "Command16"},
      {"Combo2", "Check5", "Check6", "Check7", "Check8", "Command11", "Command14", "Command19"},
      {"optSwap1", "Command26", "Command18", "Command20"},
      {"Command6", "Command17"}};
  StartInFront();
  PutKeyboardOn("List1");
  PressKeyWith(VK_SHIFT, VK_TAB);
  for (std::size_t tab = 0; tab < orders.size(); ++tab) {
    ExpectKeyboardOn("SSTab1");
    for (const std::string& name : orders[tab]) {
      PressKey(VK_TAB);
      ExpectKeyboardOn(name);
    }
    PressKey(VK_TAB);
    ExpectKeyboardOn("SSTab1");
    PressKey(VK_RIGHT);
    const auto next = static_cast<int>(std::min(tab + 1, orders.size() - 1));
    EXPECT_TRUE(program.Await([&] { return program.OpenedTab() == next; })) << next;
  }
  CloseProgram();
}

TEST_F(KeyboardSession, SpaceTicksAndArrowsChooseAnOption) {
  StartInFront();
  program.OpenTab(2);
  PutKeyboardOn("Option4");
  PressKey(VK_DOWN);
  ExpectKeyboardOn("Option5");
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "TimeUnit") == "2"; }));
  program.OpenTab(3);
  PutKeyboardOn("Check4");
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "Warnings") == "1"; }));
  PressKey(VK_SPACE);
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "Warnings") == "0"; }));
  EXPECT_FALSE(program.IsChecked("Check4"));
  CloseProgram();
}

TEST_F(KeyboardSession, LimitAcceptsOnlyDigitsAndARefusedLimitIsReset) {
  StartInFront();
  program.OpenTab(1);
  PutKeyboardOn("Text9");
  PressKey(VK_END);
  TypeText("x5");
  ASSERT_TRUE(program.Await([&] { return program.Text("Text9") == "805"; })) << program.Text("Text9");
  PressKey(VK_TAB);
  ASSERT_TRUE(program.Await([&] { return !program.MessageBoxes().empty(); }));
  const MessageBox refusal = program.MessageBoxes().front();
  EXPECT_EQ(refusal.title, "Q-DIX");
  EXPECT_EQ(refusal.text, "Please enter a number between 5 an 99");
  PressKey(VK_RETURN);
  EXPECT_TRUE(program.Await([&] { return program.MessageBoxes().empty(); }));
  ExpectKeyboardOn("Text9");
  TypeText("70");
  EXPECT_TRUE(program.Await([&] { return program.Text("Text9") == "70"; }))
      << "the refused text was selected, so typing replaces it";
  PressKey(VK_TAB);
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "AutoCPU") == "70"; }));
  CloseProgram();
}

TEST_F(KeyboardSession, EscapeClosesNothing) {
  StartInFront();
  PutKeyboardOn("Text1");
  PressKey(VK_ESCAPE);
  PressKey(VK_TAB);
  ExpectKeyboardOn("VScroll1");
  EXPECT_TRUE(IsWindowVisible(program.MainWindow()));
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
