// Later starts of the shipped exe: stored settings come back, and the window starts as requested.
#include "tests/e2e/driver/hand.h"
#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

class RestartSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }
};

TEST_F(RestartSession, ChoicesOfEveryTabSurvive) {
  StartProgram();
  ASSERT_TRUE(program.Choose("List1", "24 MB"));
  program.OpenTab(1);
  ASSERT_TRUE(program.Choose("List2", "60"));
  ASSERT_TRUE(program.Choose("List4", "48 MB"));
  program.Press("Check9");
  program.OpenTab(2);
  program.Press("Option5");
  ASSERT_TRUE(program.Await([] { return RegistryText(kSettings, "TimeUnit") == "2"; }));
  ASSERT_TRUE(program.Choose("lstTime", "12"));
  ASSERT_TRUE(program.Choose("List3", "72 MB"));
  program.OpenTab(3);
  ASSERT_TRUE(program.Choose("Combo1", "16 MB"));
  program.Press("Check4");
  ASSERT_TRUE(program.Await([] { return RegistryText(kSettings, "Warnings") == "1"; }));
  CloseProgram();
  EXPECT_EQ(RegistryText(kSettings, "FreeUpRAM"), "24");
  EXPECT_EQ(RegistryText(kSettings, "CPUAutoActive"), "0");
  EXPECT_EQ(RegistryText(kSettings, "LastTab"), "3");
  EXPECT_EQ(RegistryText(kStartup, "StartupRAM"), "16");
  EXPECT_EQ(RegistryText(kStartup, "TimeHours"), "12");

  ShippedProgram again;
  StartCopy(again);
  EXPECT_EQ(again.OpenedTab(), 3);
  EXPECT_TRUE(again.IsVisible("Option1")) << "the last page of the previous run is open";
  EXPECT_FALSE(again.IsVisible("Command1"));
  EXPECT_TRUE(again.HasSelected("Combo1", "16 MB"));
  EXPECT_TRUE(again.IsChecked("Check4"));
  again.OpenTab(0);
  EXPECT_TRUE(again.HasSelected("List1", "24 MB"));
  again.OpenTab(1);
  EXPECT_TRUE(again.HasSelected("List2", "60"));
  EXPECT_TRUE(again.HasSelected("List4", "48 MB"));
  EXPECT_FALSE(again.IsChecked("Check9"));
  EXPECT_FALSE(again.IsEnabled("Text9"));
  again.OpenTab(2);
  EXPECT_TRUE(again.IsChecked("Option5"));
  EXPECT_TRUE(again.HasSelected("lstTime", "12"));
  EXPECT_TRUE(again.HasSelected("List3", "72 MB"));
  CloseCopy(again);
}

TEST_F(RestartSession, TypedAndScrolledNumbersSurvive) {
  StartProgram();
  ASSERT_TRUE(Click(program.Control("Text1")));
  ASSERT_TRUE(program.Await([&] { return program.FocusedControl() == "Text1"; }));
  PressKey(VK_END);
  TypeText("2");
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "TryTimes") == "12"; }));
  // The bar counts upward: a click on its upper end adds one to its current value.
  ASSERT_TRUE(ClickAt(program.Control("VScroll1"), {6, 4}));
  EXPECT_TRUE(program.Await([] { return RegistryText(kSettings, "TryTimes") == "2"; }))
      << program.Text("Text1");
  EXPECT_EQ(program.Text("Text1"), "2");
  CloseProgram();

  ShippedProgram again;
  StartCopy(again);
  EXPECT_EQ(again.Text("Text1"), "2");
  CloseCopy(again);
}

TEST_F(RestartSession, StoredTextsComeBackAsTheyAre) {
  SetRegistryText(kSettings, "TryTimes", "2.5 times");
  SetRegistryText(kSettings, "MinRAM", "none");
  SetRegistryText(kSettings, "FreeUpRAM", "33");
  SetRegistryText(kSettings, "LastTab", "17");
  StartProgram();
  EXPECT_EQ(program.Text("Text1"), "2.5 times");
  EXPECT_EQ(Ask(program.Control("List1"), LB_GETCURSEL), LB_ERR) << "33 MB is no entry";
  EXPECT_EQ(program.OpenedTab(), 0);
  program.OpenTab(1);
  EXPECT_EQ(program.Text("Text2"), "none");
  EXPECT_EQ(RegistryText(kSettings, "FreeUpRAM"), "33");
  CloseProgram();
}

TEST_F(RestartSession, DisplayAtStartupIsStoredWhenItIsChosen) {
  StartProgram();
  program.OpenTab(3);
  for (const char* const mode : {"2", "3", "1"}) {
    program.Press(std::string("Option") + mode);
    EXPECT_TRUE(program.Await([mode] { return RegistryText(kStartup, "StartDisplay") == mode; })) << mode;
    EXPECT_TRUE(program.IsChecked(std::string("Option") + mode));
  }
  CloseProgram();
}

TEST_F(RestartSession, HiddenStartShowsNoWindowAndRefreshesItsCaption) {
  SetRegistryText(kStartup, "StartDisplay", "3");
  ASSERT_TRUE(program.Start());
  ASSERT_TRUE(program.WaitForFirstReading());
  EXPECT_FALSE(IsWindowVisible(program.MainWindow()));
  EXPECT_TRUE(program.HasIcon());
  CloseProgram();
}

TEST_F(RestartSession, MinimisedStart) {
  SetRegistryText(kStartup, "StartDisplay", "2");
  ASSERT_TRUE(program.Start());
  ASSERT_TRUE(program.WaitForFirstReading());
  EXPECT_TRUE(program.Await([&] { return IsIconic(program.MainWindow()) != 0; }));
  EXPECT_TRUE(IsWindowVisible(program.MainWindow()));
  ShowWindowAsync(program.MainWindow(), SW_RESTORE);
  EXPECT_TRUE(program.Await([&] { return IsIconic(program.MainWindow()) == 0; }));
  EXPECT_TRUE(program.IsVisible("Command1"));
  CloseProgram();
}

TEST_F(RestartSession, AnUnknownDisplayModeShowsTheWindow) {
  SetRegistryText(kStartup, "StartDisplay", "9");
  StartProgram();
  EXPECT_FALSE(IsIconic(program.MainWindow()));
  program.OpenTab(3);
  for (const char* const option : {"Option1", "Option2", "Option3"}) {
    EXPECT_FALSE(program.IsChecked(option)) << option;
  }
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
