// The offer to restart the machine.
#include "tuning/restart.h"

#include <gtest/gtest.h>

#include "os/simulated/simulated_machine.h"

namespace qdix::tuning {
namespace {

class RestartTest : public testing::Test {
 protected:
  os::SimulatedMachine machine;
  ui::EventDispatcher events;
  ui::Form form{events, {.name = "Form1"}};
  ui::Application application{"Q-DIX"};
  host::Boxes boxes{machine.GetSystem().dialogs, application};
  Restart restart{machine.GetSystem().session, boxes, form};
};

TEST_F(RestartTest, OfferAsksInTheSystemsWords) {
  machine.AnswerNextBox(os::kIdNo);
  restart.Offer();
  ASSERT_EQ(machine.Boxes().size(), 1U);
  EXPECT_EQ(machine.Boxes()[0].text,
            "You must restart your computer before the new settings take effect.\r\n\r\n"
            "Do you want to restart your computer now?");
  EXPECT_EQ(machine.Boxes()[0].title, "Q-DIX");
  EXPECT_EQ(machine.Boxes()[0].flags, os::kMbYesNo | os::kMbIconInformation);
}

TEST_F(RestartTest, YesRestartsAndThenEndsTheProgram) {
  machine.AnswerNextBox(os::kIdYes);
  restart.Offer();
  EXPECT_EQ(machine.Calls().back(), "ExitWindowsEx(2, 0)");
  EXPECT_TRUE(form.Unloaded());
}

TEST_F(RestartTest, NoDoesNeither) {
  machine.AnswerNextBox(os::kIdNo);
  restart.Offer();
  EXPECT_EQ(machine.RestartCount(), 0);
  EXPECT_FALSE(form.Unloaded());
}

TEST_F(RestartTest, UnansweredBoxDoesNeither) {
  machine.WhileBoxIsOpen([this] { machine.EndBoxes(); });
  restart.Offer();
  EXPECT_EQ(machine.RestartCount(), 0);
}

TEST_F(RestartTest, RefusedRestartStillEndsTheProgram) {
  machine.AnswerNextBox(os::kIdYes);
  machine.FailNextCall("ExitWindowsEx");
  restart.Offer();
  EXPECT_EQ(machine.RestartCount(), 0);
  EXPECT_TRUE(form.Unloaded());
}

}  // namespace
}  // namespace qdix::tuning
