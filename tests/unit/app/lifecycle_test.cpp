// Start order, second copy, tabs, closing, the end of the session, pausing.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

using Texts = std::vector<std::string>;

class Lifecycle : public testing::Test {
 protected:
  app::Form1& Start() {
    rig.SetHasRunBefore();
    return rig.Start();
  }
  /// Returns the names of the settings written since call `first_call`, in order.
  [[nodiscard]] Texts WrittenValues(std::size_t first_call = 0) const {
    return rig.machine.WrittenValueNames(first_call);
  }

  ProgramRig rig;
};

TEST_F(Lifecycle, LoadWritesInItsFixedOrder) {
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run");
  rig.Start();
  EXPECT_EQ(WrittenValues(),
            (Texts{"CounterDate", "CounterValue", "Quondix", "HasRun", "CPUAutoActive", "CPUTimeActive",
                   "FreeUpRAM", "TryTimes", "MinRAM", "AutoQuondix", "TimeQuondix", "TimeUnit", "TimeMinutes",
                   "AutoSecs", "StartDisplay", "StartupTime", "Launcher RAM", "Launcher Retry"}));
}

TEST_F(Lifecycle, LoadReadsItsSettingsInItsFixedOrder) {
  rig.machine.CreateRegistryKey(os::kHkeyCurrentUser, ProgramRig::SectionPath("Settings"));
  rig.machine.CreateRegistryKey(os::kHkeyCurrentUser, ProgramRig::SectionPath("Startup"));
  Start();
  Texts read = rig.machine.QueriedValueNames();
  read.erase(std::unique(read.begin(), read.end()), read.end());
  EXPECT_EQ(read, (Texts{"HasRun",       "CPUAutoActive", "AutoCPU",     "CPU",          "CPUTimeActive",
                         "TimeCPU",      "LastTab",       "CounterDate", "CounterValue", "FreeUpRAM",
                         "TryTimes",     "MinRAM",        "AutoQuondix", "TimeQuondix",  "AutoActive",
                         "Warnings",     "TimeUnit",      "TimeMinutes", "AutoSecs",     "TimeActive",
                         "StartDisplay", "StartupRAM",    "StartupTime", "Launcher RAM", "Launcher Retry"}));
}

TEST_F(Lifecycle, SevenTimersHaveTheirDesignStateBeforeTheLoad) {
  std::vector<std::tuple<std::string, std::int32_t, bool>> timers;
  for (const ui::Timer* timer : rig.Create().Timers()) {
    timers.emplace_back(timer->Name(), timer->Interval(), timer->Enabled());
  }
  EXPECT_EQ(timers, (std::vector<std::tuple<std::string, std::int32_t, bool>>{{"Timer1", 750, false},
                                                                              {"Timer2", 0, false},
                                                                              {"Timer3", 0, false},
                                                                              {"Timer4", 60000, false},
                                                                              {"Timer5", 10000, false},
                                                                              {"Timer6", 65000, true},
                                                                              {"Timer7", 3000, false}}));
}

TEST_F(Lifecycle, LoadCreatesTheMachineWideKey) {
  Start();
  EXPECT_TRUE(rig.machine.KeyExists(os::kHkeyLocalMachine, "SOFTWARE\\QDIX"));
}

TEST_F(Lifecycle, LoadLeavesNoRegistryKeyOpen) {
  Start();
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0);
}

TEST_F(Lifecycle, AllEightTabsExistAndCanBeShown) {
  auto& tabs = Start().MainWindow().SSTab1;
  const Texts captions{"Quondix",  "Automatic",      "Time Intervals",    "Startup / Other",
                       "Launcher", "Cache Settings", "Optimize Swapfile", "About"};
  ASSERT_EQ(tabs.Count(), 8);
  for (int i = 0; i < 8; ++i) {
    tabs.ChooseTab(i);
    EXPECT_EQ(tabs.Tab(), i);
    EXPECT_EQ(tabs.Page(i).Caption(), captions[static_cast<std::size_t>(i)]);
  }
}

class SecondCopy : public Lifecycle {
 protected:
  void SetUp() override {
    rig.machine.SetOtherCopyRunning(true);
    first_window = rig.machine.OpenWindow("QDIXMain", "23.45 MB   Q-DIX");
  }
  os::WindowHandle first_window = 0;
};

class SecondCopyByClass : public SecondCopy, public testing::WithParamInterface<const char*> {};
TEST_P(SecondCopyByClass, RestoresAndRaisesTheFirstAndEnds) {
  const os::WindowHandle hidden = rig.machine.OpenWindow(GetParam(), "Q-DIX");
  rig.machine.PlaceDirectlyBehind(hidden, first_window);
  rig.machine.Minimise(first_window);
  rig.Start();
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_FALSE(rig.program->Form().Shown());
  EXPECT_FALSE(rig.machine.IsMinimised(first_window));
  EXPECT_EQ(rig.machine.ForegroundWindow(), first_window);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}
INSTANTIATE_TEST_SUITE_P(Classes, SecondCopyByClass,
                         testing::Values("ThunderRTMain", "ThunderRT5Main", "ThunderRT6Main"));

TEST_F(SecondCopy, ShowsAFirstCopyThatIsOnlyHidden) {
  const os::WindowHandle behind = rig.machine.OpenWindow("ThunderRT6Main", "Q-DIX");
  rig.machine.PlaceDirectlyBehind(behind, first_window);
  rig.machine.HideWindow(first_window);
  rig.Start();
  EXPECT_TRUE(rig.machine.IsWindowShown(first_window));
  EXPECT_EQ(rig.machine.ForegroundWindow(), first_window);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(SecondCopy, RestoresThenShowsThenRaises) {
  rig.machine.PlaceDirectlyBehind(rig.machine.OpenWindow("ThunderRT6Main", "Q-DIX"), first_window);
  rig.Start();
  const Texts& calls = rig.machine.Calls();
  const auto found = std::find(calls.begin(), calls.end(), "GetWindow(3)");
  ASSERT_GE(calls.end() - found, 4);
  EXPECT_EQ(Texts(found + 1, found + 4), (Texts{"OpenIcon()", "ShowWindow(8)", "SetForegroundWindow()"}));
}

TEST_F(SecondCopy, TriesTheClassesInOrderAndStopsAtTheFirstFound) {
  rig.machine.OpenWindow("ThunderRT5Main", "Q-DIX");
  rig.Start();
  Texts finds;
  for (const std::string& call : rig.machine.Calls()) {
    if (call.starts_with("FindWindowA")) finds.push_back(call);
  }
  ASSERT_EQ(finds.size(), 2U);
  EXPECT_NE(finds[0].find("ThunderRTMain"), std::string::npos);
  EXPECT_NE(finds[1].find("ThunderRT5Main"), std::string::npos);
}

TEST_F(SecondCopy, CannotFindItselfBecauseItIsRenamedFirst) {
  rig.Create();
  os::WindowHandle own = rig.machine.OpenWindow("ThunderRT6Main", rig.program->TheApplication().Title());
  struct Renaming {
    os::SimulatedMachine& machine;
    app::Form1& program;
    os::WindowHandle own;
    void Rename() { machine.SetWindowTitle(own, program.TheApplication().Title()); }
  } renaming{rig.machine, *rig.program, own};
  rig.program->TheApplication().OnTitleChanged = base::Callback<void()>::To<&Renaming::Rename>(renaming);
  rig.program->Start();
  EXPECT_EQ(rig.program->TheApplication().Title(), "unwanted instance");
  EXPECT_NE(rig.machine.ForegroundWindow(), own);
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(SecondCopy, ChangesNoSettingAndCreatesNoKey) {
  rig.Store("Settings", "FreeUpRAM", "16");
  rig.Start();
  EXPECT_TRUE(WrittenValues().empty());
  EXPECT_FALSE(rig.machine.KeyExists(os::kHkeyLocalMachine, "SOFTWARE\\QDIX"));
  EXPECT_EQ(rig.Stored("Settings", "FreeUpRAM"), "16");
}

TEST_F(SecondCopy, AlsoEndsIfTheFirstHasNoWindowYet) {
  rig.Start();
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST_F(SecondCopy, ReportsThatNoWindowIsInFrontOfTheHiddenOne) {
  rig.machine.CloseWindow(first_window);
  rig.machine.OpenWindow("ThunderRT6Main", "Q-DIX");
  rig.Start();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "error in ActivatePrecInstance");
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_TRUE(rig.program->Form().Unloaded());
}

TEST_F(Lifecycle, CloseWritesAtMostFourValuesInOrder) {
  auto& program = Start();
  program.MainWindow().SSTab1.ChooseTab(screens::kAboutTab);
  const std::size_t before = rig.machine.Calls().size();
  program.Form().Unload();
  EXPECT_EQ(WrittenValues(before), (Texts{"StartupRAM", "AutoCPU", "TimeCPU", "LastTab"}));
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "7");
  EXPECT_EQ(rig.Stored("Startup", "StartupRAM"), "32");
}

TEST_F(Lifecycle, CloseStoresAnUnvalidatedEdit) {
  auto& program = Start();
  program.MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  program.AutomaticScreen().Text9.SetFocus();
  program.AutomaticScreen().Text9.SelectAll();
  program.AutomaticScreen().Text9.TypeText("55");
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), std::nullopt);
  program.Form().Unload();
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), "55");
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "1");
}

TEST_F(Lifecycle, CloseWithAnInvalidLimitTellsTheUserAndKeepsTheStoredValue) {
  rig.Store("Settings", "AutoCPU", "70");
  auto& program = Start();
  program.AutomaticScreen().Text9.SetText("4");
  program.Form().Unload();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Please enter a number between 5 an 99");
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), "70");
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "1") << "the refusal opened the tab with the limit";
  EXPECT_TRUE(program.Form().Unloaded());
}

TEST_F(Lifecycle, EndOfTheSessionDuringABoxOfTheLoadLeavesNoIconAndStoresNothing) {
  rig.machine.SetCpuLoad(300);
  rig.machine.WhileBoxIsOpen([this] { rig.program->EndSession(); });
  Start();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_EQ(rig.machine.TrayIconCount(), 0);
  EXPECT_EQ(WrittenValues(), Texts{});
}

/// Returns the recorded calls from `first` on.
Texts CallsAfter(const os::SimulatedMachine& machine, std::size_t first) {
  return {machine.Calls().begin() + static_cast<std::ptrdiff_t>(first), machine.Calls().end()};
}

TEST(LoadOfAFirstRun, StopsWhenTheSessionEndsDuringTheTip) {
  ProgramRig rig;
  rig.Store("Settings", "LastTab", "1");
  std::size_t at_the_end = 0;
  rig.machine.WhileBoxIsOpen([&] {
    rig.program->EndSession();
    at_the_end = rig.machine.Calls().size();
  });
  rig.Start();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Quondix Tip");
  EXPECT_EQ(CallsAfter(rig.machine, at_the_end), Texts{});
  EXPECT_TRUE(rig.program->Form().Unloaded());
  EXPECT_FALSE(rig.program->Form().Shown());
}

TEST_F(Lifecycle, EndOfTheSessionDuringTheBoxOfACloseSavesAndEndsAtOnce) {
  rig.Store("Settings", "AutoCPU", "70");
  auto& program = Start();
  program.AutomaticScreen().Text9.SetText("4");
  program.TimeIntervalsScreen().Text10.SetText("33");
  std::size_t at_the_end = 0;
  rig.machine.WhileBoxIsOpen([&] {
    EXPECT_EQ(rig.Stored("Settings", "LastTab"), std::nullopt);
    program.EndSession();
    EXPECT_TRUE(program.Form().Unloaded()) << "the process may end now";
    EXPECT_EQ(rig.Stored("Settings", "TimeCPU"), "33");
    EXPECT_EQ(rig.Stored("Settings", "LastTab"), "1") << "the refusal opened the tab with the limit";
    EXPECT_EQ(rig.machine.TrayIconCount(), 0);
    at_the_end = rig.machine.Calls().size();
  });
  program.Form().Unload();
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(CallsAfter(rig.machine, at_the_end), Texts{});
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), "70");
}

TEST_F(Lifecycle, EndOfTheSessionDuringTheSecondBoxOfACloseSavesAndEndsAtOnce) {
  auto& program = Start();
  program.AutomaticScreen().Text9.SetText("33");
  program.TimeIntervalsScreen().Text10.SetText("4");
  std::size_t at_the_end = 0;
  rig.machine.WhileBoxIsOpen([&] {
    program.EndSession();
    EXPECT_EQ(rig.Stored("Settings", "LastTab"), "2");
    at_the_end = rig.machine.Calls().size();
  });
  program.Form().Unload();
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(CallsAfter(rig.machine, at_the_end), Texts{});
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), "33");
  EXPECT_EQ(rig.Stored("Settings", "TimeCPU"), std::nullopt);
}

TEST_F(Lifecycle, CloseHappensOnce) {
  auto& program = Start();
  program.Form().Unload();
  const std::size_t calls = rig.machine.Calls().size();
  program.Form().Unload();
  rig.AdvanceMs(60000);
  EXPECT_EQ(rig.machine.Calls().size(), calls) << "no timer ticks after the close";
}

TEST_F(Lifecycle, CloseBeforeTheEndOfTheLoadSavesNothing) {
  auto& program = rig.Create();
  program.Form().Unload();
  EXPECT_TRUE(WrittenValues().empty());
}

TEST_F(Lifecycle, EndOfTheSessionAsksNothingAndDropsInvalidLimits) {
  rig.Store("Settings", "AutoCPU", "70");
  auto& program = Start();
  program.AutomaticScreen().Text9.SetText("100");
  program.TimeIntervalsScreen().Text10.SetText("99");
  program.EndSession();
  EXPECT_TRUE(rig.machine.Boxes().empty());
  EXPECT_TRUE(program.Form().Unloaded());
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU"), "70");
  EXPECT_EQ(rig.Stored("Settings", "TimeCPU"), "99");
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "0");
}

TEST_F(Lifecycle, LeavingATabByTheKeyboardChecksTheLimitOnIt) {
  auto& program = Start();
  auto& tabs = program.MainWindow().SSTab1;
  tabs.ChooseTab(screens::kAutomaticTab);
  program.AutomaticScreen().Text9.SetText("4");  // the focus is elsewhere, so only leaving the tab checks it
  tabs.ChooseTab(screens::kAboutTab);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(tabs.Tab(), screens::kAutomaticTab);
  EXPECT_TRUE(program.AutomaticScreen().Text9.HasFocus());
  EXPECT_EQ(program.AutomaticScreen().Text9.SelectionLength(), 1);
}

TEST_F(Lifecycle, LeavingATabWithTheFocusInAnInvalidLimitAsksOnceAndStays) {
  auto& program = Start();
  auto& tabs = program.MainWindow().SSTab1;
  tabs.ChooseTab(screens::kTimeIntervalsTab);
  program.TimeIntervalsScreen().Text10.SetFocus();
  program.TimeIntervalsScreen().Text10.SelectAll();
  program.TimeIntervalsScreen().Text10.TypeText("100");
  tabs.ChooseTab(screens::kQuondixTab);
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(tabs.Tab(), screens::kTimeIntervalsTab);
  EXPECT_TRUE(program.TimeIntervalsScreen().Text10.HasFocus());
}

TEST_F(Lifecycle, InvalidLimitThatOpensItsTabChecksNoOtherLimit) {
  auto& program = Start();
  auto& tabs = program.MainWindow().SSTab1;
  tabs.ChooseTab(screens::kTimeIntervalsTab);
  program.AutomaticScreen().Text9.SetText("4");
  program.TimeIntervalsScreen().Text10.SetText("4");
  (void)program.AutomaticRelease().Text9_Validate();
  EXPECT_EQ(tabs.Tab(), screens::kAutomaticTab);
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

struct Limit {
  const char* text;
  bool accepted;
};
class CpuLimits : public Lifecycle, public testing::WithParamInterface<Limit> {};
TEST_P(CpuLimits, AreAcceptedFrom5To99) {
  auto& program = Start();
  program.AutomaticScreen().Text9.SetText(GetParam().text);
  const auto accepted = program.AutomaticRelease().Text9_Validate();
  EXPECT_EQ(accepted.ValueOr(!GetParam().accepted), GetParam().accepted);
  EXPECT_EQ(rig.Stored("Settings", "AutoCPU").has_value(), GetParam().accepted);
}
INSTANTIATE_TEST_SUITE_P(Values, CpuLimits,
                         testing::Values(Limit{"4", false}, Limit{"5", true}, Limit{"99", true},
                                         Limit{"100", false}, Limit{"", false}, Limit{"4.9", false},
                                         Limit{"99.5", false}, Limit{"50", true}));

TEST_F(Lifecycle, PauseStopsTheTimersAndResumeStartsThoseTicked) {
  auto& program = Start();
  auto& window = program.MainWindow();
  program.MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  program.TimeIntervalsScreen().Check3.Press();
  program.MainWindow().SSTab1.ChooseTab(screens::kQuondixTab);
  auto& pause = program.QuondixScreen().Command3;
  pause.Press();
  EXPECT_EQ(pause.Caption(), "Resume Activity");
  for (const ui::Timer* timer : {&window.Timer1, &window.Timer2, &window.Timer3, &window.Timer4}) {
    EXPECT_FALSE(timer->Enabled()) << timer->Name();
  }
  EXPECT_FALSE(program.AutomaticScreen().Check1.Enabled());
  EXPECT_FALSE(program.TimeIntervalsScreen().Check3.Enabled());
  EXPECT_FALSE(program.TimeIntervalsScreen().lblNextRelease.Visible());
  pause.Press();
  EXPECT_EQ(pause.Caption(), "Pause All Activity");
  EXPECT_TRUE(window.Timer1.Enabled());
  EXPECT_FALSE(window.Timer2.Enabled()) << "its box is cleared";
  EXPECT_FALSE(window.Timer3.Enabled()) << "a paused start-up release is lost";
  EXPECT_TRUE(window.Timer4.Enabled());
  EXPECT_TRUE(program.AutomaticScreen().Check1.Enabled());
  EXPECT_TRUE(program.TimeIntervalsScreen().Check3.Enabled());
  EXPECT_TRUE(program.TimeIntervalsScreen().lblNextRelease.Visible());
}

TEST_F(Lifecycle, ResumeRestartsTheLowMemoryCheckIfItIsTicked) {
  auto& program = Start();
  program.MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  program.AutomaticScreen().Check1.Press();
  ASSERT_TRUE(program.MainWindow().Timer2.Enabled());
  program.MainWindow().SSTab1.ChooseTab(screens::kQuondixTab);
  program.QuondixScreen().Command3.Press();
  EXPECT_FALSE(program.MainWindow().Timer2.Enabled());
  program.QuondixScreen().Command3.Press();
  EXPECT_TRUE(program.MainWindow().Timer2.Enabled());
}

TEST_F(Lifecycle, ResumeWithoutTimedReleasesLeavesTheirLabelOff) {
  auto& program = Start();
  program.QuondixScreen().Command3.Press();
  program.QuondixScreen().Command3.Press();
  EXPECT_TRUE(program.TimeIntervalsScreen().Check3.Enabled());
  EXPECT_FALSE(program.MainWindow().Timer4.Enabled());
  EXPECT_FALSE(program.TimeIntervalsScreen().lblNextRelease.Visible());
}

TEST_F(Lifecycle, ChoosingADisplayModeStoresItAndChangesNothingNow) {
  auto& program = Start();
  program.MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  program.StartupScreen().Option3.Press();
  EXPECT_EQ(rig.Stored("Startup", "StartDisplay"), "3");
  EXPECT_TRUE(program.Form().Shown());
  program.StartupScreen().Option2.Press();
  EXPECT_EQ(rig.Stored("Startup", "StartDisplay"), "2");
  EXPECT_EQ(program.Form().State(), ui::WindowState::kNormal);
}

TEST_F(Lifecycle, UntrappedErrorShowsItsNumberAndUnloads) {
  auto& program = Start();
  // A bar of height zero has no scale. Dividing by it is an error that the button's handler does not trap.
  program.QuondixScreen().XGraphMeter1.SetMax(0);
  rig.machine.WhileBoxIsOpen(
      [&program] { EXPECT_FALSE(program.Form().Unloaded()) << "it unloads only after the box was read"; });
  program.QuondixScreen().Command1.Press();
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].text, "Run-time error '11':\r\n\r\nDivision by zero");
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk | os::kMbIconStop);
  EXPECT_TRUE(program.Form().Unloaded());
  EXPECT_EQ(rig.Stored("Settings", "LastTab"), "0") << "it unloads normally";
}

}  // namespace
}  // namespace qdix::tests
