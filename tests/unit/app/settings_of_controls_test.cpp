// Every option is stored the moment its control changes.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

class ControlSettings : public testing::Test {
 protected:
  void SetUp() override {
    rig.SetHasRunBefore();
    rig.Start();
  }
  void Open(int tab) { rig.program->MainWindow().SSTab1.ChooseTab(tab); }
  [[nodiscard]] std::string Settings(const char* key) const {
    return rig.Stored("Settings", key).value_or("(none)");
  }
  [[nodiscard]] std::string Startup(const char* key) const {
    return rig.Stored("Startup", key).value_or("(none)");
  }

  ProgramRig rig;
};

TEST_F(ControlSettings, ManualAmountAndPasses) {
  auto& screen = rig.program->QuondixScreen();
  EXPECT_TRUE(screen.List1.Choose("64 MB"));
  EXPECT_EQ(Settings("FreeUpRAM"), "64");
  screen.VScroll1.Step(-2);  // up
  EXPECT_EQ(screen.Text1.Text(), "3");
  EXPECT_EQ(Settings("TryTimes"), "3");
  screen.Text1.SelectAll();
  screen.Text1.TypeText("5");
  EXPECT_EQ(Settings("TryTimes"), "5");
}

TEST_F(ControlSettings, UpArrowOfTheBarsIncreasesTheirValue) {
  Open(screens::kAutomaticTab);
  rig.program->AutomaticScreen().VScroll2.Step(-1);
  EXPECT_EQ(rig.program->AutomaticScreen().Text2.Text(), "3");
  Open(screens::kStartupTab);
  rig.program->StartupScreen().VScroll3.Step(-1);
  EXPECT_EQ(Startup("StartupTime"), "61");
  rig.program->StartupScreen().VScroll3.Drag(240);
  EXPECT_EQ(Startup("StartupTime"), "240");
}

TEST_F(ControlSettings, AutomaticTab) {
  Open(screens::kAutomaticTab);
  auto& screen = rig.program->AutomaticScreen();
  screen.Check1.Press();
  EXPECT_EQ(Settings("AutoActive"), "1");
  EXPECT_TRUE(rig.program->MainWindow().Timer2.Running());
  screen.Check1.Press();
  EXPECT_EQ(Settings("AutoActive"), "0");
  EXPECT_FALSE(rig.program->MainWindow().Timer2.Running());
  EXPECT_TRUE(screen.List2.Choose("300"));
  EXPECT_EQ(Settings("AutoSecs"), "300");
  EXPECT_EQ(rig.program->AutomaticRelease().AutoCheckTicks(), 5);
  EXPECT_TRUE(screen.List4.Choose("512 MB"));
  EXPECT_EQ(Settings("AutoQuondix"), "512");
  screen.Text2.SelectAll();
  screen.Text2.TypeText("x");
  EXPECT_EQ(Settings("MinRAM"), "x");
  screen.Check9.Press();
  EXPECT_EQ(Settings("CPUAutoActive"), "0");
  EXPECT_FALSE(screen.Text9.Enabled());
  EXPECT_EQ(screen.Text9.BackColour(), ui::kMenuBackground);
  screen.Check9.Press();
  EXPECT_EQ(Settings("CPUAutoActive"), "1");
  EXPECT_TRUE(screen.Text9.Enabled());
  EXPECT_EQ(screen.Text9.BackColour(), ui::kWindowBackground);
}

TEST_F(ControlSettings, ResetCounterStoresTheBareDate) {
  rig.Store("Settings", "CounterValue", "12");
  Open(screens::kAutomaticTab);
  rig.program->AutomaticScreen().Command7.Press();
  EXPECT_EQ(Settings("CounterDate"), "46347");
  EXPECT_EQ(Settings("CounterValue"), "0");
  EXPECT_EQ(rig.program->AutomaticScreen().lblCounter.Caption(),
            "Automatic feature has detected and released RAM 0 times since Q-DIX was started on "
            "Saturday, November 21, 2026");
}

TEST_F(ControlSettings, TimeIntervalsTab) {
  Open(screens::kTimeIntervalsTab);
  auto& screen = rig.program->TimeIntervalsScreen();
  screen.Check3.Press();
  EXPECT_EQ(Settings("TimeActive"), "1");
  EXPECT_TRUE(screen.lblNextRelease.Visible());
  EXPECT_EQ(screen.lblNextRelease.Caption(), "Next Release of RAM is due in 30 minutes");
  EXPECT_TRUE(screen.lstTime.Choose("50"));
  EXPECT_EQ(Startup("TimeMinutes"), "50");
  screen.Option5.Press();
  EXPECT_EQ(Settings("TimeUnit"), "2");
  EXPECT_EQ(Startup("TimeHours"), "1");
  EXPECT_EQ(screen.lblNextRelease.Caption(), "Next Release of RAM is due in 60 minutes");
  EXPECT_TRUE(screen.lstTime.Choose("24"));
  EXPECT_EQ(Startup("TimeHours"), "24");
  EXPECT_EQ(Startup("TimeMinutes"), "50");
  EXPECT_EQ(screen.lblNextRelease.Caption(), "Next Release of RAM is due in 1440 minutes");
  screen.Option4.Press();
  EXPECT_EQ(screen.lstTime.SelectedText(), "50");
  EXPECT_TRUE(screen.List3.Choose("12 MB"));
  EXPECT_EQ(Settings("TimeQuondix"), "12");
  screen.Check10.Press();
  EXPECT_EQ(Settings("CPUTimeActive"), "0");
  screen.Check3.Press();
  EXPECT_EQ(Settings("TimeActive"), "0");
  EXPECT_FALSE(screen.lblNextRelease.Visible());
}

TEST_F(ControlSettings, StartupTab) {
  Open(screens::kStartupTab);
  auto& screen = rig.program->StartupScreen();
  screen.Check4.Press();
  EXPECT_EQ(Settings("Warnings"), "1");
  screen.Combo1.SetFocus();
  EXPECT_TRUE(screen.Combo1.Choose("16 MB"));
  EXPECT_EQ(Startup("StartupRAM"), "(none)") << "it is stored when the focus leaves";
  screen.Text3.SetFocus();
  EXPECT_EQ(Startup("StartupRAM"), "16");
}

TEST_F(ControlSettings, GraphIntervalIsStoredWhenTheUserMovesIt) {
  Open(screens::kStartupTab);
  EXPECT_EQ(Settings("CPU"), "(none)");
  rig.program->StartupScreen().Slider7.Drag(3);
  EXPECT_EQ(Settings("CPU"), "3");
}

TEST_F(ControlSettings, RefusedWritesLeaveTheOldValueAndSayNothing) {
  rig.Store("Settings", "FreeUpRAM", "16");
  rig.machine.DenyWrites(os::kHkeyCurrentUser, ProgramRig::SectionPath("Settings"));
  EXPECT_TRUE(rig.program->QuondixScreen().List1.Choose("64 MB"));
  EXPECT_EQ(Settings("FreeUpRAM"), "16");
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

}  // namespace
}  // namespace qdix::tests
