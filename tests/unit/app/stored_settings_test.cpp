// What a start does with stored values: exact ones, odd ones, and ones edited by somebody else.
#include <gtest/gtest.h>

#include "registry/settings.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

class StoredSettings : public testing::Test {
 protected:
  void SetUp() override { rig.SetHasRunBefore(); }
  app::Form1& Start() { return rig.Start(); }

  ProgramRig rig;
};

TEST_F(StoredSettings, AmountThatIsNoListItemLeavesTheListWithoutASelection) {
  rig.Store("Settings", "FreeUpRAM", "33");
  EXPECT_EQ(Start().QuondixScreen().List1.SelectedIndex(), -1);
  EXPECT_EQ(rig.Stored("Settings", "FreeUpRAM"), "33");
}

TEST_F(StoredSettings, AmountsAreComparedAsNumbers) {
  rig.Store("Settings", "FreeUpRAM", " 16.0 MB");
  EXPECT_EQ(Start().QuondixScreen().List1.SelectedText(), "16 MB");
}

TEST_F(StoredSettings, TextBoxShowsTheStoredTextAndTheBarTheNearestValue) {
  rig.Store("Settings", "TryTimes", "2.5");
  rig.Store("Settings", "MinRAM", "1000");
  rig.Store("Startup", "StartupTime", "abc");
  auto& program = Start();
  EXPECT_EQ(program.QuondixScreen().Text1.Text(), "2.5");
  EXPECT_EQ(program.QuondixScreen().VScroll1.Value(), 2);
  EXPECT_EQ(rig.Stored("Settings", "TryTimes"), "2.5");
  EXPECT_EQ(program.AutomaticScreen().Text2.Text(), "1000");
  EXPECT_EQ(program.AutomaticScreen().VScroll2.Value(), 32);
  EXPECT_EQ(rig.Stored("Settings", "MinRAM"), "1000");
  EXPECT_EQ(program.StartupScreen().Text3.Text(), "abc");
  EXPECT_EQ(program.StartupScreen().VScroll3.Value(), 1);
  EXPECT_EQ(rig.Stored("Startup", "StartupTime"), "abc");
}

TEST_F(StoredSettings, GraphIntervalTakesTheNearestPosition) {
  rig.Store("Settings", "CPU", "99");
  EXPECT_EQ(Start().StartupScreen().Slider7.Value(), 5);
  EXPECT_EQ(rig.Stored("Settings", "CPU"), "99");
}

TEST_F(StoredSettings, LastTabIsOpened) {
  rig.Store("Settings", "LastTab", "3");
  EXPECT_EQ(Start().MainWindow().SSTab1.Tab(), 3);
}

class OddTab : public StoredSettings, public testing::WithParamInterface<const char*> {};
TEST_P(OddTab, OpensTheFirst) {
  rig.Store("Settings", "LastTab", GetParam());
  EXPECT_EQ(Start().MainWindow().SSTab1.Tab(), 0);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}
INSTANTIATE_TEST_SUITE_P(Values, OddTab, testing::Values("8", "-1", "", "abc", "1E300", "99999999999"));

TEST_F(StoredSettings, CounterShowsItsCountAndLongDate) {
  rig.Store("Settings", "CounterDate", "36526.75");
  rig.Store("Settings", "CounterValue", "12");
  EXPECT_EQ(Start().AutomaticScreen().lblCounter.Caption(),
            "Auto Detection feature has detected and released RAM 12 times since Q-DIX was started on "
            "Saturday, January 1, 2000");
  EXPECT_EQ(rig.Stored("Settings", "CounterDate"), "36526.75");
}

class NoDate : public StoredSettings, public testing::WithParamInterface<const char*> {};
TEST_P(NoDate, CountsAsMissing) {
  rig.Store("Settings", "CounterDate", GetParam());
  EXPECT_TRUE(Start().AutomaticScreen().lblCounter.Caption().ends_with("on Saturday, November 21, 2026"));
  EXPECT_EQ(rig.Stored("Settings", "CounterDate"), "46347.5");
}
INSTANTIATE_TEST_SUITE_P(Values, NoDate, testing::Values("", "yesterday", "12 o'clock", "1E300", "-1E9"));

TEST_F(StoredSettings, MissingCounterDateIsStoredAtLoad) {
  Start();
  EXPECT_EQ(rig.Stored("Settings", "CounterDate"), "46347.5");
}

class OddCount : public StoredSettings, public testing::WithParamInterface<const char*> {};
TEST_P(OddCount, ReadsZero) {
  rig.Store("Settings", "CounterValue", GetParam());
  EXPECT_TRUE(Start().AutomaticScreen().lblCounter.Caption().starts_with(
      "Auto Detection feature has detected and released RAM 0 times"));
}
INSTANTIATE_TEST_SUITE_P(Values, OddCount, testing::Values("", "x", "2147483648", "-1E300"));

TEST_F(StoredSettings, AutomaticReleaseStartsWithTheDefaultIntervalThenTheStoredOne) {
  rig.Store("Settings", "AutoActive", "True");
  rig.Store("Settings", "AutoSecs", "30");
  auto& program = Start();
  EXPECT_TRUE(program.AutomaticScreen().Check1.Ticked());
  EXPECT_TRUE(program.MainWindow().Timer2.Enabled());
  EXPECT_EQ(program.MainWindow().Timer2.Interval(), 30000);
  EXPECT_EQ(rig.Stored("Settings", "AutoActive"), "1");
}

TEST_F(StoredSettings, IntervalThatIsNoListItemLeavesTheTimerWithoutOne) {
  rig.Store("Settings", "AutoActive", "1");
  rig.Store("Settings", "AutoSecs", "7");
  auto& program = Start();
  EXPECT_TRUE(program.MainWindow().Timer2.Enabled());
  EXPECT_EQ(program.MainWindow().Timer2.Interval(), 0);
}

TEST_F(StoredSettings, LongCheckIntervalsAreCountedInMinutes) {
  rig.Store("Settings", "AutoSecs", "120");
  auto& program = Start();
  EXPECT_EQ(program.MainWindow().Timer2.Interval(), 60000);
  EXPECT_EQ(program.AutomaticRelease().AutoCheckTicks(), 2);
  program.MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  EXPECT_TRUE(program.AutomaticScreen().List2.Choose("60"));
  EXPECT_EQ(program.MainWindow().Timer2.Interval(), 60000);
  EXPECT_EQ(program.AutomaticRelease().AutoCheckTicks(), 1);
}

TEST_F(StoredSettings, ClearedCpuGateDisablesItsBoxFromTheStart) {
  rig.Store("Settings", "CPUAutoActive", "0");
  rig.Store("Settings", "AutoCPU", "55");
  rig.Store("Settings", "CPUTimeActive", "False");
  auto& program = Start();
  EXPECT_FALSE(program.AutomaticScreen().Check9.Ticked());
  EXPECT_FALSE(program.AutomaticScreen().Text9.Enabled());
  EXPECT_EQ(program.AutomaticScreen().Text9.BackColour(), ui::kMenuBackground);
  EXPECT_EQ(program.AutomaticScreen().Text9.Text(), "55");
  EXPECT_FALSE(program.TimeIntervalsScreen().Text10.Enabled());
}

TEST_F(StoredSettings, HoursFillTheListWithHours) {
  rig.Store("Settings", "TimeUnit", "2");
  rig.Store("Startup", "TimeHours", "24");
  rig.Store("Settings", "TimeActive", "1");
  auto& screen = Start().TimeIntervalsScreen();
  EXPECT_TRUE(screen.Option5.Selected());
  EXPECT_FALSE(screen.Option4.Selected());
  EXPECT_EQ(screen.lstTime.Count(), 17);
  EXPECT_EQ(screen.lstTime.SelectedText(), "24");
  EXPECT_TRUE(screen.lblNextRelease.Visible());
  EXPECT_EQ(screen.lblNextRelease.Caption(), "Next Release of RAM is due in 1440 minutes");
  EXPECT_TRUE(rig.program->MainWindow().Timer4.Running());
}

TEST_F(StoredSettings, UnknownUnitIsHours) {
  rig.Store("Settings", "TimeUnit", "fortnights");
  EXPECT_TRUE(Start().TimeIntervalsScreen().Option5.Selected());
  EXPECT_EQ(rig.program->TimeIntervalsScreen().lstTime.SelectedText(), "1");
}

TEST_F(StoredSettings, MinimisedStart) {
  rig.Store("Startup", "StartDisplay", "2");
  auto& program = Start();
  EXPECT_TRUE(program.StartupScreen().Option2.Selected());
  EXPECT_TRUE(program.Form().Shown());
  EXPECT_EQ(program.Form().State(), ui::WindowState::kMinimised);
  EXPECT_TRUE(program.MainWindow().Timer1.Running());
}

TEST_F(StoredSettings, HiddenStartStillRunsTheDisplayTimer) {
  rig.Store("Startup", "StartDisplay", "3");
  auto& program = Start();
  EXPECT_TRUE(program.StartupScreen().Option3.Selected());
  EXPECT_FALSE(program.Form().Shown());
  EXPECT_TRUE(program.MainWindow().Timer1.Running());
}

TEST_F(StoredSettings, UnknownDisplayModeTicksNoneAndShowsTheWindow) {
  rig.Store("Startup", "StartDisplay", "4");
  auto& program = Start();
  EXPECT_FALSE(program.StartupScreen().Option1.Selected());
  EXPECT_FALSE(program.StartupScreen().Option2.Selected());
  EXPECT_FALSE(program.StartupScreen().Option3.Selected());
  EXPECT_TRUE(program.Form().Shown());
}

struct Delay {
  const char* stored;
  std::int32_t interval_ms;
  int left_seconds;
};
class StartupDelay : public StoredSettings, public testing::WithParamInterface<Delay> {};
TEST_P(StartupDelay, ArmsTimer3) {
  rig.Store("Startup", "StartupTime", GetParam().stored);
  auto& program = Start();
  EXPECT_TRUE(program.MainWindow().Timer3.Enabled());
  EXPECT_EQ(program.MainWindow().Timer3.Interval(), GetParam().interval_ms);
  EXPECT_EQ(program.StartupRelease().StartupDelayLeft(), GetParam().left_seconds);
}
INSTANTIATE_TEST_SUITE_P(Values, StartupDelay,
                         testing::Values(Delay{"60", 60000, 0}, Delay{"61", 60000, 61}, Delay{"1", 1000, 0},
                                         Delay{"240", 60000, 240}, Delay{"", 0, 0}, Delay{"-5", 0, 0},
                                         Delay{"1E300", 60000, 32767}));

TEST_F(StoredSettings, GarbageInEveryValueNeverEndsTheLoad) {
  const std::vector<std::string> garbage{"",
                                         "x",
                                         "-1",
                                         "1E300",
                                         "-1E300",
                                         "99999999999",
                                         std::string(70000, '9'),
                                         std::string("\xFF\xFE\x80"),
                                         "0x10",
                                         "1,5"};
  for (const std::string& text : garbage) {
    ProgramRig odd;
    odd.SetHasRunBefore();
    for (const registry::Setting* setting : registry::kAllSettings) {
      odd.Store(setting->section, setting->key, text);
    }
    odd.Start();
    EXPECT_FALSE(odd.program->Form().Unloaded()) << text.substr(0, 20);
    EXPECT_TRUE(odd.machine.Boxes().empty()) << text.substr(0, 20);
    odd.AdvanceMs(2000);
  }
}

}  // namespace
}  // namespace qdix::tests
