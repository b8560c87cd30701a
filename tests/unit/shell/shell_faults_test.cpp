// Registers the program to start with Windows, puts its shortcut on the desktop and opens its help, for every
// system call that can fail: with that call failing once, and with all calls failing from then on.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* kProgram = "C:\\Program Files\\QDIX\\QDIX.exe";
constexpr const char* kOnDesktop = "C:\\WINDOWS\\Desktop\\Quondix.lnk";
constexpr const char* kInStartUp = "C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\Quondix.lnk";
constexpr const char* kManual = "C:\\Program Files\\QDIX\\help.htm";
constexpr const char* kForeignShortcut = "C:\\WINDOWS\\Start Menu\\Programs\\StartUp\\Other.lnk";
constexpr const char* kMissingViewer = "Run-time error '53':\r\n\r\nFile not found";
/// Shown when the program cannot read that it has run before.
constexpr const char* kFirstStart = "The Automatic free up function has been disabled on purpose";

void PressAllHelpButtons(app::Form1& program) {
  struct HelpButton {
    screens::Tab tab;
    ui::Button& button;
  };
  const std::array<HelpButton, 9> buttons{
      {{screens::kQuondixTab, program.QuondixScreen().Command21},
       {screens::kAutomaticTab, program.AutomaticScreen().Command22},
       {screens::kTimeIntervalsTab, program.TimeIntervalsScreen().Command23},
       {screens::kStartupTab, program.StartupScreen().Command24},
       {screens::kLauncherTab, program.LauncherScreen().Command16},
       {screens::kCacheTab, program.CacheScreen().Command19},
       {screens::kSwapFileTab, program.SwapFileScreen().Command20},
       {screens::kAboutTab, program.AboutScreen().Command17},
       {screens::kAboutTab, program.AboutScreen().Command6}}};
  for (const HelpButton& help : buttons) {
    program.MainWindow().SSTab1.ChooseTab(help.tab);
    help.button.Press();
  }
}

/// Registers, with a shortcut in the StartUp folder as well; unregisters; registers again. Makes one desktop
/// shortcut through the recent documents, and one directly. Presses every help button, the first with a
/// viewer open.
void UseShell(ProgramRig& rig) {
  rig.SetHasRunBefore();
  rig.machine.CreateRegistryKey(os::kHkeyLocalMachine, kRunKey);
  rig.machine.SetRegistryValue(os::kHkeyLocalMachine, kRunKey, "Other", "other.exe");
  rig.machine.AddShortcut(kInStartUp, {.target = kProgram, .arguments = {}, .folder = {}});
  rig.machine.WriteFile(kForeignShortcut, "somebody's");
  rig.machine.WriteFile(kManual, "<html>");
  rig.Start();
  if (rig.program->Form().Unloaded()) return;
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kStartupTab);
  for (int press = 0; press < 3; ++press) rig.program->StartupScreen().Check2.Press();
  rig.program->StartupScreen().Command5.Press();
  rig.machine.MakeNoRecentShortcuts();
  rig.program->StartupScreen().Command5.Press();
  rig.machine.OpenWindow("QDIXMain", "Quondix Help");
  PressAllHelpButtons(*rig.program);
  rig.program->Form().Unload();
}

/// An icon that the taskbar does not remove on request is out of the program's hands.
bool RemovalOfIconWasAsked(const os::SimulatedMachine& machine) {
  const std::string request = "Shell_NotifyIconA(" + std::to_string(os::kNimDelete) + ",";
  return std::ranges::any_of(machine.Calls(), [&](const auto& call) { return call.starts_with(request); });
}

void ExpectSoundEnd(ProgramRig& rig, int call) {
  EXPECT_TRUE(rig.program->Form().Unloaded()) << call;
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << call;
  EXPECT_TRUE(rig.machine.Misuses().empty()) << call;
  EXPECT_TRUE(rig.machine.TrayIconCount() == 0 || RemovalOfIconWasAsked(rig.machine)) << call;
  // The program registers its own path or nothing, and other programs' entries stay.
  const auto entry = rig.machine.RegistryText(os::kHkeyLocalMachine, kRunKey, "Quondix");
  EXPECT_EQ(entry.value_or(kProgram), kProgram) << call;
  EXPECT_EQ(rig.machine.RegistryText(os::kHkeyLocalMachine, kRunKey, "Other"), "other.exe") << call;
  EXPECT_EQ(rig.machine.ReadFile(kForeignShortcut), "somebody's") << call;
  const auto shortcut = rig.machine.ShortcutAt(kOnDesktop);
  EXPECT_EQ(shortcut.has_value() ? shortcut->target : kProgram, kProgram) << call;
  EXPECT_EQ(rig.machine.ReadFile(kOnDesktop).has_value(), shortcut.has_value()) << call;
  for (const auto& box : rig.machine.Boxes()) {
    EXPECT_TRUE(box.text == kMissingViewer || box.text.starts_with(kFirstStart)) << call << ": " << box.text;
  }
}

/// Runs the session once for each call of the fault-free session, with the fault that `plan` sets up.
template <class Plan>
void RunWithFaults(const Plan& plan) {
  ProgramRig sound;
  UseShell(sound);
  ExpectSoundEnd(sound, 0);
  EXPECT_TRUE(sound.machine.Boxes().empty());
  ASSERT_EQ(sound.machine.StartedPrograms().size(), 8U);
  ASSERT_EQ(sound.machine.OpenedFiles().size(), 1U);
  ASSERT_TRUE(sound.machine.ShortcutAt(kOnDesktop).has_value());
  const int calls = sound.machine.FaultableCallCount();
  ASSERT_GT(calls, 100);
  for (int call = 1; call <= calls; ++call) {
    ProgramRig rig;
    plan(rig.machine, call);
    UseShell(rig);
    ExpectSoundEnd(rig, call);
  }
}

TEST(ShellFaults, EachCallFailedOnceLeavesNothingHalfRegistered) {
  RunWithFaults([](os::SimulatedMachine& machine, int call) { machine.FailCallNumber(call); });
}

TEST(ShellFaults, AllCallsFailedFromEachOnLeaveNothingHalfRegistered) {
  RunWithFaults([](os::SimulatedMachine& machine, int call) { machine.FailFromCallNumber(call); });
}

}  // namespace
}  // namespace qdix::tests
