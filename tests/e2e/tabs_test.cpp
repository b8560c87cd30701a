// The tabs of the shipped exe: each is opened and photographed; the tip; the keyboard.
#include <array>

#include "tests/e2e/session.h"

namespace qdix::e2e {
namespace {

class TabSession : public Session {};

TEST_F(TabSession, EachTabIsOpenedAndPhotographed) {
  MarkMachineAsKnown();
  StartProgram();
  constexpr std::array<const char*, 8> kNames{"quondix",  "automatic", "time_intervals", "startup_other",
                                              "launcher", "cache",     "swapfile",       "about"};
  constexpr std::array<const char*, 8> kPages{"QuondixPage",  "AutomaticPage", "TimeIntervalsPage",
                                              "StartupPage",  "LauncherPage",  "CachePage",
                                              "SwapFilePage", "AboutPage"};
  ASSERT_TRUE(Eventually([&] { return program.Caption().ends_with(" MB   Q-DIX"); }));
  for (std::size_t tab = 0; tab < kNames.size(); ++tab) {
    program.OpenTab(static_cast<int>(tab));
    for (std::size_t page = 0; page < kPages.size(); ++page) {
      EXPECT_EQ(IsWindowVisible(program.Control(kPages[page])) != 0, page == tab) << kPages[page];
    }
    program.AnswerBoxes();
    EXPECT_TRUE(Photograph(kNames[tab]));
  }
  EXPECT_EQ(program.Text("lblVersion"), "v2.00");
  CloseProgram();
}

TEST_F(TabSession, TipIsShownOnceOnTheFirstRun) {
  StartProgram();
  program.AnswerBoxes();
  PostMessageA(program.Control("SSTab1"), 0x1330, 1, 0);  // choose the second tab without waiting for the box
  ASSERT_TRUE(Eventually([&] {
    const auto boxes = program.MessageBoxes();
    return boxes.size() == 1 && boxes[0].title == "Quondix Tip";
  }));
  const MessageBox tip = program.MessageBoxes().front();
  EXPECT_TRUE(tip.text.starts_with("The Automatic free up function has been disabled on purpose"));
  EXPECT_TRUE(tip.text.ends_with("simply ensure the 'Auto Detection Active' checkbox is checked."));
  program.AnswerBoxes();
  ASSERT_TRUE(Eventually([&] { return program.MessageBoxes().empty(); }));
  program.OpenTab(0);
  program.OpenTab(1);
  EXPECT_TRUE(program.MessageBoxes().empty());
  CloseProgram();
}

TEST_F(TabSession, EveryControlOfTheScreensHasItsWindow) {
  MarkMachineAsKnown();
  StartProgram();
  for (const char* name :
       {"lblTotalMem",  "Gauge1",   "lblPercentFree", "lblSwapfile", "Gauge2",  "lblSwapfileUsed",
        "XGraphMeter1", "lblUSAGE", "lblCPU",         "List1",       "Text1",   "VScroll1",
        "Command1",     "Command2", "Command3",       "Command4",    "Check1",  "List2",
        "List4",        "Text2",    "VScroll2",       "Check9",      "Text9",   "Command7",
        "lblCounter",   "Check3",   "Option4",        "Option5",     "lstTime", "List3",
        "Check10",      "Text10",   "lblNextRelease", "Check2",      "Combo1",  "Text3",
        "VScroll3",     "Option1",  "Option2",        "Option3",     "Slider7", "Check4",
        "lblVersion"}) {
    EXPECT_NE(program.Control(name), nullptr) << name;
  }
  CloseProgram();
}

TEST_F(TabSession, GaugeKeepsItsFixedSizeAndTheGraphItsInnerHeight) {
  MarkMachineAsKnown();
  StartProgram();
  const RECT gauge = program.ScreenRect("Gauge1");
  EXPECT_EQ(gauge.right - gauge.left, 160);
  EXPECT_EQ(gauge.bottom - gauge.top, 20);
  RECT graph = {};
  GetClientRect(program.Control("XGraphMeter1"), &graph);
  EXPECT_EQ(graph.bottom, 65);
  CloseProgram();
}

TEST_F(TabSession, WholeWindowFitsOn640By480) {
  MarkMachineAsKnown();
  StartProgram();
  RECT window = {};
  GetWindowRect(program.MainWindow(), &window);
  EXPECT_LE(window.right - window.left, 640);
  EXPECT_LE(window.bottom - window.top, 480 - 28) << "the taskbar takes 28 lines";
  CloseProgram();
}

TEST_F(TabSession, SwitchingTabsAHundredTimesTakesNoMoreMemory) {
  MarkMachineAsKnown();
  StartProgram();
  for (int i = 0; i < 16; ++i) program.OpenTab(i % 8);
  const std::uint64_t before = program.CommittedBytes();
  for (int i = 0; i < 100; ++i) program.OpenTab(i % 8);
  EXPECT_LE(program.CommittedBytes(), before + 64 * 1024);
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
