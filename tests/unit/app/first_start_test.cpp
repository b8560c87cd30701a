// What the first start on a machine stores and shows, and what later starts do with the stored values.
#include <gtest/gtest.h>

#include <limits>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

TEST(FirstStart, StoresExactlyTheDefaultsOfA64MegabyteMachine) {
  ProgramRig rig(64 * kMegabyte);
  rig.Start();
  const std::map<std::string, std::string> settings =
      rig.machine.RegistryTexts(os::kHkeyCurrentUser, ProgramRig::SectionPath("Settings"));
  EXPECT_EQ(settings, (std::map<std::string, std::string>{{"CounterDate", "46347.5"},
                                                          {"CounterValue", "0"},
                                                          {"CPUAutoActive", "1"},
                                                          {"CPUTimeActive", "1"},
                                                          {"FreeUpRAM", "32"},
                                                          {"TryTimes", "1"},
                                                          {"MinRAM", "2"},
                                                          {"AutoQuondix", "32"},
                                                          {"TimeQuondix", "32"},
                                                          {"TimeUnit", "1"},
                                                          {"AutoSecs", "20"},
                                                          {"Launcher RAM", "1"},
                                                          {"Launcher Retry", "1"}}));
  const std::map<std::string, std::string> startup =
      rig.machine.RegistryTexts(os::kHkeyCurrentUser, ProgramRig::SectionPath("Startup"));
  EXPECT_EQ(startup, (std::map<std::string, std::string>{
                         {"TimeMinutes", "30"}, {"StartDisplay", "1"}, {"StartupTime", "60"}}));
}

TEST(FirstStart, ShowsTheDefaultsInItsControls) {
  ProgramRig rig(64 * kMegabyte);
  auto& program = rig.Start();
  EXPECT_EQ(program.QuondixScreen().List1.SelectedText(), "32 MB");
  EXPECT_EQ(program.QuondixScreen().Text1.Text(), "1");
  EXPECT_EQ(program.AutomaticScreen().Text2.Text(), "2");
  EXPECT_EQ(program.AutomaticScreen().VScroll2.Value(), 2);
  EXPECT_EQ(program.AutomaticScreen().List4.SelectedText(), "32 MB");
  EXPECT_EQ(program.AutomaticScreen().List2.SelectedText(), "20");
  EXPECT_EQ(program.AutomaticScreen().Text9.Text(), "80");
  EXPECT_FALSE(program.AutomaticScreen().Check1.Ticked());
  EXPECT_TRUE(program.AutomaticScreen().Check9.Ticked());
  EXPECT_EQ(program.TimeIntervalsScreen().List3.SelectedText(), "32 MB");
  EXPECT_EQ(program.TimeIntervalsScreen().lstTime.SelectedText(), "30");
  EXPECT_EQ(program.TimeIntervalsScreen().Text10.Text(), "80");
  EXPECT_TRUE(program.TimeIntervalsScreen().Option4.Selected());
  EXPECT_FALSE(program.TimeIntervalsScreen().lblNextRelease.Visible());
  EXPECT_EQ(program.StartupScreen().Combo1.Text(), "32 MB");
  EXPECT_EQ(program.StartupScreen().Text3.Text(), "60");
  EXPECT_EQ(program.StartupScreen().VScroll3.Value(), 60);
  EXPECT_TRUE(program.StartupScreen().Option1.Selected());
  EXPECT_EQ(program.AboutScreen().lblVersion.Caption(), "v2.10");
  EXPECT_EQ(program.MainWindow().SSTab1.Tab(), 0);
  EXPECT_TRUE(program.Form().Shown());
}

TEST(FirstStart, ChecksStartWithWindowsAndRegistersTheProgram) {
  ProgramRig rig;
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run");
  EXPECT_TRUE(rig.Start().StartupScreen().Check2.Ticked());
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine,
                                     "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Quondix"),
            "C:\\Program Files\\QDIX\\QDIX.exe");
}

TEST(FirstStart, HappensOnlyOncePerMachine) {
  ProgramRig rig;
  rig.Start();
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, "SOFTWARE\\QDIX", "HasRun"), "1");
  rig.Store("Settings", "CounterValue", "7");
  rig.Create();
  rig.program->Start();
  EXPECT_EQ(rig.Stored("Settings", "CounterValue"), "7");
}

TEST(FirstStart, MarkerFallsBackToTheUserKeyIfTheMachineKeyIsReadOnly) {
  ProgramRig rig;
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, "SOFTWARE\\QDIX");
  rig.machine.DenyWrites(os::kHkeyLocalMachine, "SOFTWARE\\QDIX");
  rig.Start();
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyCurrentUser, "Software\\QDIX", "HasRun"), "1");
  rig.Store("Settings", "CounterValue", "7");
  rig.Create();
  rig.program->Start();
  EXPECT_EQ(rig.Stored("Settings", "CounterValue"), "7");
}

TEST(FirstStart, TipIsShownOnceWhenTheAutomaticTabIsFirstOpened) {
  ProgramRig rig;
  auto& tabs = rig.Start().MainWindow().SSTab1;
  tabs.ChooseTab(screens::kTimeIntervalsTab);
  EXPECT_TRUE(rig.machine.Boxes().empty());
  tabs.ChooseTab(screens::kAutomaticTab);
  ASSERT_EQ(rig.machine.Boxes().size(), 1U);
  EXPECT_EQ(rig.machine.Boxes()[0].title, "Quondix Tip");
  EXPECT_EQ(rig.machine.Boxes()[0].flags, os::kMbOk | os::kMbIconInformation);
  EXPECT_EQ(rig.machine.Boxes()[0].text,
            "The Automatic free up function has been disabled on purpose to show you how inefficient Windows "
            "really is.\r\nYou can see how much RAM is available in realtime in the title bar as it is "
            "constantly updated.  On machines running 64 MB or less it is very common to almost run out of "
            "RAM after just starting Windows.\r\n\r\nTo activate the automatic feature simply ensure the "
            "'Auto Detection Active' checkbox is checked.");
  tabs.ChooseTab(screens::kQuondixTab);
  tabs.ChooseTab(screens::kAutomaticTab);
  EXPECT_EQ(rig.machine.Boxes().size(), 1U);
}

TEST(LaterStart, ShowsNoTip) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.Start().MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  EXPECT_TRUE(rig.machine.Boxes().empty());
}

TEST(LaterStart, DoesNotRegisterAProgramThatIsNotRegistered) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run");
  EXPECT_FALSE(rig.Start().StartupScreen().Check2.Ticked());
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine,
                                     "Software\\Microsoft\\Windows\\CurrentVersion\\Run", "Quondix"),
            std::nullopt);
}

TEST(LaterStart, RepairsTheEntryOfAProgramThatWasMoved) {
  ProgramRig rig;
  rig.SetHasRunBefore();
  const char* run = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, run, "Quondix", "D:\\OLD\\QDIX.exe");
  EXPECT_TRUE(rig.Start().StartupScreen().Check2.Ticked());
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, run, "Quondix"),
            "C:\\Program Files\\QDIX\\QDIX.exe");
}

TEST(StartRegistration, UntickingRemovesTheEntry) {
  ProgramRig rig;
  const char* run = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, run);
  rig.Start();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  rig.program->StartupScreen().Check2.Press();
  EXPECT_FALSE(rig.program->StartupScreen().Check2.Ticked());
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, run, "Quondix"), std::nullopt);
}

TEST(StartRegistration, NeverCreatesTheRunKey) {
  ProgramRig rig;
  rig.Start();
  EXPECT_FALSE(
      rig.machine.KeyExists(os::kHkeyLocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Run"));
}

struct MachineSize {
  std::uint32_t megabytes;
  const char* manual;
  const char* release;
  const char* threshold;
};

class DefaultsBySize : public testing::TestWithParam<MachineSize> {};

TEST_P(DefaultsBySize, FollowHalfOfTheMemory) {
  ProgramRig rig(GetParam().megabytes * kMegabyte);
  auto& program = rig.Start();
  EXPECT_EQ(program.QuondixScreen().List1.SelectedText(), GetParam().manual);
  EXPECT_EQ(program.AutomaticScreen().List4.SelectedText(), GetParam().release);
  EXPECT_EQ(program.TimeIntervalsScreen().List3.SelectedText(), GetParam().release);
  EXPECT_EQ(program.AutomaticScreen().Text2.Text(), GetParam().threshold);
}

// 16 MB are 16.384 of the program's megabytes, and half of the whole part is 8; and so on.
INSTANTIATE_TEST_SUITE_P(
    Machines, DefaultsBySize,
    testing::Values(MachineSize{1, "", "", "1"}, MachineSize{8, "4 MB", "", "1"},
                    MachineSize{16, "8 MB", "", "1"}, MachineSize{24, "12 MB", "12 MB", "1"},
                    MachineSize{32, "16 MB", "16 MB", "1"}, MachineSize{33, "16 MB", "16 MB", "2"},
                    MachineSize{64, "32 MB", "32 MB", "2"}, MachineSize{65, "32 MB", "32 MB", "4"},
                    MachineSize{96, "48 MB", "48 MB", "6"}, MachineSize{128, "64 MB", "64 MB", "6"},
                    MachineSize{129, "64 MB", "64 MB", "8"}, MachineSize{256, "120 MB", "120 MB", "8"},
                    MachineSize{512, "232 MB", "232 MB", "8"}, MachineSize{1024, "512 MB", "512 MB", "8"}));

}  // namespace
}  // namespace qdix::tests
