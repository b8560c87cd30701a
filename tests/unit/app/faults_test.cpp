// Runs a whole session for every system call that can fail: with that call failing once, and with all calls
// failing from then on.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"

namespace qdix::tests {
namespace {

/// The first start opens the first steps. Without the viewer the program ends.
constexpr const char* kMissingViewer = "Run-time error '53':\r\n\r\nFile not found";

/// A session that reaches every call: first start, a release of two blocks, each tab, a change of settings,
/// automatic releases on a machine that runs short of memory, a restarted taskbar, the close.
void RunSession(ProgramRig& rig) {
  rig.machine.SetCpuLoad(10);
  rig.machine.FakeProcessor().SetLeaf(0, {.eax = 1});
  rig.machine.FakeProcessor().SetLeaf(1, {.eax = 0x052C, .edx = 0x10});
  rig.SetAvailableMb(1);
  rig.Start();
  if (rig.program->Form().Unloaded()) return;
  rig.RemoveGraph();
  rig.AdvanceMs(1500);
  rig.program->QuondixScreen().List1.Choose("512 MB");
  rig.program->QuondixScreen().Command1.Press();
  for (int tab = 0; tab < 8; ++tab) rig.program->MainWindow().SSTab1.ChooseTab(tab);
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kAutomaticTab);
  rig.program->AutomaticScreen().Check1.Press();
  rig.program->AutomaticScreen().Command7.Press();
  rig.program->MainWindow().SSTab1.ChooseTab(screens::kTimeIntervalsTab);
  rig.program->TimeIntervalsScreen().Check3.Press();
  rig.program->TimeIntervalsScreen().lstTime.Choose("5");
  rig.program->MainWindow().Timer1.SetEnabled(false);
  rig.AdvanceMs(65000);
  rig.machine.OpenWindow("Shell_TrayWnd", "");
  rig.AdvanceMs(5 * kMinuteMs);
  rig.program->Form().Unload();
}

int CallsOfASession() {
  ProgramRig rig;
  RunSession(rig);
  return rig.machine.FaultableCallCount();
}

void ExpectSoundEnd(ProgramRig& rig, int call) {
  EXPECT_TRUE(rig.program->Form().Unloaded()) << call;
  EXPECT_TRUE(rig.machine.OutstandingBlocks().empty()) << call;
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << call;
  EXPECT_TRUE(rig.machine.Misuses().empty()) << call << ": " << rig.machine.Misuses().front();
}

void ExpectKnownMessages(const ProgramRig& rig, int call) {
  for (const auto& box : rig.machine.Boxes()) {
    EXPECT_TRUE(box.text.starts_with("Warning - System Resources") ||
                box.text.starts_with("The Automatic free up function") || box.text == kMissingViewer)
        << call << ": " << box.text;
  }
}

TEST(Faults, EachCallFailedOnceEndsOnlyItsOwnOperationAndShowsOnlyKnownMessages) {
  const int calls = CallsOfASession();
  ASSERT_GT(calls, 50);
  for (int call = 1; call <= calls; ++call) {
    ProgramRig rig;
    rig.machine.FailCallNumber(call);
    RunSession(rig);
    ExpectSoundEnd(rig, call);
    ExpectKnownMessages(rig, call);
  }
}

TEST(Faults, AllCallsFailedFromEachOnEndOnlyTheirOwnOperations) {
  const int calls = CallsOfASession();
  for (int call = 1; call <= calls; ++call) {
    ProgramRig rig;
    rig.machine.FailFromCallNumber(call);
    RunSession(rig);
    ExpectSoundEnd(rig, call);
  }
}

}  // namespace
}  // namespace qdix::tests
