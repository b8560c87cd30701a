// The tabs of the shipped exe: each is opened and photographed; the tip of the first run; sizes and
// positions.
#include <algorithm>
#include <array>

#include "tests/e2e/session.h"
#include "tests/e2e/window_rules.h"

namespace qdix::e2e {
namespace {

struct Tab {
  const char* page;
  const char* picture;
};

/// In the order of the tabs.
constexpr std::array<Tab, 8> kTabs{{{"QuondixPage", "quondix"},
                                    {"AutomaticPage", "automatic"},
                                    {"TimeIntervalsPage", "time_intervals"},
                                    {"StartupPage", "startup_other"},
                                    {"LauncherPage", "launcher"},
                                    {"CachePage", "cache"},
                                    {"SwapFilePage", "swapfile"},
                                    {"AboutPage", "about"}}};

class TabSession : public Session {
 protected:
  void SetUp() override {
    Session::SetUp();
    MarkMachineAsKnown();
  }
};

class FirstRunTabSession : public Session {};

TEST_F(TabSession, EachTabIsOpenedAndPhotographed) {
  StartProgram();
  for (std::size_t tab = 0; tab < kTabs.size(); ++tab) {
    program.OpenTab(static_cast<int>(tab));
    EXPECT_EQ(program.OpenedTab(), static_cast<int>(tab));
    for (std::size_t other = 0; other < kTabs.size(); ++other) {
      EXPECT_EQ(program.IsVisible(kTabs[other].page), other == tab) << kTabs[other].page;
    }
    EXPECT_TRUE(program.MessageBoxes().empty());
    EXPECT_TRUE(Photograph(kTabs[tab].picture));
  }
  CloseProgram();
}

TEST_F(FirstRunTabSession, TipIsShownOnceOnTheFirstRun) {
  StartProgram();
  program.BeginToOpenTab(1);
  ASSERT_TRUE(program.Await([&] { return !program.MessageBoxes().empty(); }));
  ASSERT_EQ(program.MessageBoxes().size(), 1U);
  const MessageBox tip = program.MessageBoxes().front();
  EXPECT_EQ(tip.title, "Quondix Tip");
  EXPECT_EQ(tip.text,
            "The Automatic free up function has been disabled on purpose to show you how inefficient Windows "
            "really is.\r\nYou can see how much RAM is available in realtime in the title bar as it is "
            "constantly updated.  On machines running 64 MB or less it is very common to almost run out of "
            "RAM after just starting Windows.\r\n\r\nTo activate the automatic feature simply ensure the "
            "'Auto Detection Active' checkbox is checked.");
  EXPECT_FALSE(IsWindowEnabled(program.MainWindow())) << "the box blocks the window";
  EXPECT_TRUE(PressButton(tip, IDOK));
  for (const int tab : {0, 1, 0, 1}) program.OpenTab(tab);
  EXPECT_TRUE(program.MessageBoxes().empty());
  CloseProgram();
}

TEST_F(TabSession, NoTipOnLaterRuns) {
  StartProgram();
  program.OpenTab(1);
  EXPECT_EQ(program.OpenedTab(), 1);
  EXPECT_TRUE(program.MessageBoxes().empty());
  CloseProgram();
}

TEST_F(TabSession, EveryControlOfTheScreensHasItsWindowWithinItsPage) {
  StartProgram();
  ASSERT_GT(program.Controls().size(), 60U);
  for (const ControlAddress& control : program.Controls()) {
    if (control.tab >= 0) program.OpenTab(control.tab);
    const HWND window = program.Control(control.name);
    ASSERT_NE(window, nullptr) << control.name;
    if (control.tab < 0) continue;
    const RECT page = program.ScreenRect(kTabs[static_cast<std::size_t>(control.tab)].page);
    const RECT place = program.ScreenRect(control.name);
    RECT common = {};
    IntersectRect(&common, &page, &place);
    EXPECT_TRUE(EqualRect(&common, &place)) << control.name;
  }
  CloseProgram();
}

TEST_F(TabSession, WindowsOfATabAreCreatedWhenItIsFirstOpened) {
  SetRegistryText(kSettings, "LastTab", "7");
  StartProgram();
  const auto count_on = [this](int tab) {
    const auto& all = program.Controls();
    return static_cast<int>(
        std::count_if(all.begin(), all.end(), [tab](const ControlAddress& at) { return at.tab == tab; }));
  };
  EXPECT_EQ(program.WindowsOnTab(-1), count_on(-1));
  EXPECT_EQ(program.WindowsOnTab(0), count_on(0)) << "its graph is drawn whether it is visible or not";
  EXPECT_EQ(program.WindowsOnTab(7), count_on(7)) << "this tab was open at the end of the last run";
  for (int tab = 1; tab < 7; ++tab) {
    EXPECT_EQ(program.WindowsOnTab(tab), 1) << "only the page itself exists for tab " << tab;
    program.OpenTab(tab);
    EXPECT_GT(program.WindowsOnTab(tab), 1) << tab;
    EXPECT_EQ(program.WindowsOnTab(tab), count_on(tab)) << tab;
  }
  CloseProgram();
}

TEST_F(TabSession, GaugesKeepTheirFixedSizeAndTheGraphItsInnerHeight) {
  StartProgram();
  for (const char* const name : {"Gauge1", "Gauge2"}) {
    const RECT gauge = program.ScreenRect(name);
    EXPECT_EQ(gauge.right - gauge.left, 160);
    EXPECT_EQ(gauge.bottom - gauge.top, 20);
  }
  RECT graph = {};
  GetClientRect(program.Control("XGraphMeter1"), &graph);
  EXPECT_EQ(graph.bottom, 65);
  CloseProgram();
}

TEST_F(TabSession, WholeWindowFitsOn640By480) {
  StartProgram();
  ExpectFitsOn640By480(program);
  CloseProgram();
}

}  // namespace
}  // namespace qdix::e2e
