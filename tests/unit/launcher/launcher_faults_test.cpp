// Starts programs from the tab and from the menu and changes the list in the editor, for every system call
// that can fail: with that call failing once, and with all calls failing from then on.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "launcher/launcher_file.h"
#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kListPath = "C:\\Program Files\\QDIX\\launcher.dat";
constexpr std::int64_t kFourTicksMs = 12000;

/// How every box begins that the session may show. The last one ends the program: the editor is missing.
constexpr std::array<const char*, 7> kKnownBoxes{"The Automatic free up function",
                                                 "File not found",
                                                 "Path not found",
                                                 "Device unavailable",
                                                 "Warning - System Resources may be low.",
                                                 "Invalid procedure call",
                                                 "Run-time error '53':"};

std::string ListOf(int count) {
  std::string bytes;
  for (int number = 0; number < count; ++number) {
    bytes += launcher::RecordBytes({"Game", "game /x", "D:\\GAMES"});
  }
  return bytes;
}

void UseTheLauncher(ProgramRig& rig) {
  rig.SetHasRunBefore();
  rig.machine.AddProgram("game");
  rig.machine.AddProgram("C:\\Program Files\\QDIX\\configL.exe");
  rig.machine.AddFolder("D:");
  rig.machine.AddFolder("D:\\GAMES");
  rig.machine.WriteFile(kListPath, ListOf(3));
  rig.Start();
  if (rig.program->Form().Unloaded()) return;
  rig.RemoveGraph();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kLauncherTab);
  screens::LauncherScreen& tab = rig.program->LauncherScreen();
  if (tab.List5.Count() > 0) {
    tab.List5.ChooseIndex(0);
    tab.List5.PressEnter();
    rig.program->TrayMenu().mnuProgram[0].Choose();
  }
  tab.Command15.Press();
  if (rig.program->Form().Unloaded()) return;
  const os::WindowHandle editor = rig.machine.OpenWindow("QDIXMain", "Config Launcher");
  tab.Command15.Press();
  rig.machine.WriteFile(kListPath, ListOf(25));
  rig.machine.CloseWindow(editor);
  rig.AdvanceMs(kFourTicksMs);
  rig.program->Form().Unload();
}

void ExpectSoundEnd(ProgramRig& rig, int call) {
  EXPECT_TRUE(rig.program->Form().Unloaded()) << call;
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty()) << call;
  EXPECT_EQ(rig.machine.OpenFileCount(), 0) << call;
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << call;
  EXPECT_TRUE(rig.machine.Misuses().empty()) << call;
  const std::string list = rig.machine.ReadFile(kListPath).value_or("(no list)");
  EXPECT_TRUE(list == ListOf(3) || list == ListOf(25)) << call << ": the list was changed";
  for (const auto& box : rig.machine.Boxes()) {
    EXPECT_TRUE(std::any_of(kKnownBoxes.begin(), kKnownBoxes.end(),
                            [&box](const char* known) { return box.text.starts_with(known); }))
        << call << ": " << box.text;
  }
}

/// Runs the session once for each call of the fault-free session, with the fault that `plan` sets up.
template <class Plan>
void RunWithFaults(const Plan& plan) {
  ProgramRig sound;
  UseTheLauncher(sound);
  ASSERT_EQ(sound.machine.StartedPrograms().size(), 3U);
  ASSERT_EQ(sound.program->LauncherScreen().List5.Count(), 25);
  const int calls = sound.machine.FaultableCallCount();
  ASSERT_GT(calls, 100);
  for (int call = 1; call <= calls; ++call) {
    ProgramRig rig;
    plan(rig.machine, call);
    UseTheLauncher(rig);
    ExpectSoundEnd(rig, call);
  }
}

TEST(LauncherFaults, EachCallFailedOnceKeepsTheListAndLeaksNoHandle) {
  RunWithFaults([](os::SimulatedMachine& machine, int call) { machine.FailCallNumber(call); });
}

TEST(LauncherFaults, AllCallsFailedFromEachOnKeepTheListAndLeakNoHandle) {
  RunWithFaults([](os::SimulatedMachine& machine, int call) { machine.FailFromCallNumber(call); });
}

}  // namespace
}  // namespace qdix::tests
