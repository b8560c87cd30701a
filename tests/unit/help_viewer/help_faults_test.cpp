// Reads, copies and prints the help for every system call that can fail: with that call failing once, and
// with all calls failing from then on. Then fails each step of the printing.
#include <gtest/gtest.h>

#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

constexpr const char* kPlaceKey = "Software\\VB and VBA Program Settings\\QDIX\\Help";

void StorePlace(HelpRig& rig) {
  for (const char* key : {"Left", "Top", "Width", "Height"}) {
    rig.machine.SetRegistryValue(os::kHkeyCurrentUser, kPlaceKey, key, "400");
  }
}

/// Opens at a topic, finds a word, follows a link, goes back, copies, prints, moves the window and closes it.
void ReadHelp(HelpRig& rig) {
  StorePlace(rig);
  rig.Start("0");
  rig.Pane().Follow(0);
  rig.Screen().cmdBack.Press();
  rig.Screen().cmdFind.Press();
  rig.TypeWord("caf\xE9");
  rig.Screen().txtWord.PressEnter();
  rig.Screen().cmdContents.Press();
  rig.Screen().lstContents.ChooseIndex(2);
  rig.Screen().cmdCopy.Press();
  rig.Screen().cmdPrint.Press();
  rig.form->Form().UserMoved({20, 30, 500, 600});
  rig.form->Form().PressEscape();
}

/// Expects each side of the window to have its old or its new position.
void ExpectSoundEnd(HelpRig& rig, int call) {
  EXPECT_TRUE(rig.form->Form().Unloaded()) << call;
  EXPECT_EQ(rig.machine.OpenKeyCount(), 0) << call;
  EXPECT_TRUE(rig.machine.Misuses().empty()) << call;
  EXPECT_FALSE(rig.printer.is_open) << call;
  EXPECT_TRUE(rig.machine.Boxes().empty()) << call << ": " << rig.machine.Boxes().front().text;
  EXPECT_TRUE(rig.printer.has_printed) << call;
  EXPECT_FALSE(rig.clipboard.text.empty()) << call;
  for (const auto& [key, changed] :
       {std::pair{"Left", "20"}, {"Top", "30"}, {"Width", "500"}, {"Height", "600"}}) {
    const auto text = rig.machine.RegistryText(os::kHkeyCurrentUser, kPlaceKey, key);
    EXPECT_TRUE(text == changed || text == "400") << call << ": " << key << " is " << text.value_or("gone");
  }
}

/// Runs the session once for each call of the fault-free session, with the fault that `plan` sets up.
template <class Plan>
void RunWithFaults(const Plan& plan) {
  HelpRig sound;
  ReadHelp(sound);
  ASSERT_EQ(sound.machine.RegistryText(os::kHkeyCurrentUser, kPlaceKey, "Left"), "20");
  const int calls = sound.machine.FaultableCallCount();
  ASSERT_GT(calls, 15);
  for (int call = 1; call <= calls; ++call) {
    HelpRig rig;
    plan(rig.machine, call);
    ReadHelp(rig);
    ExpectSoundEnd(rig, call);
  }
}

TEST(HelpFaults, EachCallFailedOnceKeepsTheTopicsReadable) {
  RunWithFaults([](os::SimulatedMachine& machine, int call) { machine.FailCallNumber(call); });
}

TEST(HelpFaults, AllCallsFailedFromEachOnKeepTheTopicsReadable) {
  RunWithFaults([](os::SimulatedMachine& machine, int call) { machine.FailFromCallNumber(call); });
}

TEST(HelpFaults, PrinterFailureAtAnyStepIsReportedOnceAndReleasesThePrinter) {
  for (const char* step : {"StartDocA", "StartPage", "EndPage", "EndDoc"}) {
    HelpRig rig;
    rig.printer.failing_call = step;
    ReadHelp(rig);
    ASSERT_EQ(rig.machine.Boxes().size(), 1U) << step;
    EXPECT_TRUE(rig.machine.Boxes().front().text.starts_with("The topic could not be printed.")) << step;
    EXPECT_FALSE(rig.printer.is_open) << step;
    EXPECT_EQ(rig.printer.calls.back(), "DeleteDC") << step;
    EXPECT_TRUE(rig.form->Form().Unloaded()) << step;
  }
}

}  // namespace
}  // namespace qdix::tests
