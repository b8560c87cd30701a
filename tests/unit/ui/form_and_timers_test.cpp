// Form, focus, dispatcher, timers.
#include <gtest/gtest.h>

#include "tests/support/control_bench.h"
#include "tests/support/stepped_timers.h"

namespace qdix::tests {
namespace {

class FormRules : public testing::Test {
 public:
  base::Result<bool> Validate() {
    ++validations;
    if (on_validate) on_validate();
    return answer;
  }

 protected:
  FormRules() {
    box.OnValidate = base::Callback<base::Result<bool>()>::To<&FormRules::Validate>(*this);
    box.OnLostFocus = lost.Handler();
    button.OnGotFocus = got.Handler();
  }
  ControlBench bench;
  ui::TextBox box{bench.form, {.name = "Text"}};
  ui::Button button{bench.form, {.name = "Button"}};
  Handled lost;
  Handled got;
  base::Result<bool> answer = true;
  std::function<void()> on_validate;
  int validations = 0;
};

TEST_F(FormRules, ActivatesAtTheFirstShowAndAtEachShowAfterHiding) {
  ui::EventDispatcher events;
  ui::Form form(events, {.name = "Form"});
  Handled activated;
  form.OnActivate = activated.Handler();
  EXPECT_FALSE(form.Shown());
  form.Show();
  form.Show();
  EXPECT_EQ(activated.count, 1);
  form.SetState(ui::WindowState::kMinimised);
  form.SetState(ui::WindowState::kNormal);
  EXPECT_EQ(activated.count, 1);
  form.Hide();
  form.Show();
  EXPECT_EQ(activated.count, 2);
}

TEST_F(FormRules, ShowingAShownFormBringsItsWindowToTheFront) {
  NotingPeer peer;
  bench.form.AttachPeer(&peer);
  bench.form.Show();
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kVisible}));
}

TEST_F(FormRules, FocusThatLeavesIsValidatedBeforeItIsLost) {
  box.SetFocus();
  on_validate = [&] { EXPECT_EQ(lost.count, 0); };
  button.SetFocus();
  EXPECT_EQ(validations, 1);
  EXPECT_EQ(lost.count, 1);
  EXPECT_EQ(got.count, 1);
  EXPECT_TRUE(button.HasFocus());
}

TEST_F(FormRules, RefusingKeepsTheFocusAndTellsTheWindow) {
  NotingPeer peer;
  box.SetFocus();
  box.AttachPeer(&peer);
  answer = false;
  EXPECT_FALSE(bench.form.MoveFocus(&button));
  EXPECT_TRUE(box.HasFocus());
  EXPECT_EQ(lost.count, 0);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kFocus}));
}

TEST_F(FormRules, HandlerThatPutsTheFocusBackKeepsIt) {
  box.SetFocus();
  on_validate = [&] { box.SetFocus(); };
  EXPECT_FALSE(bench.form.MoveFocus(&button));
  EXPECT_TRUE(box.HasFocus());
}

TEST_F(FormRules, ErrorOfAValidationIsReportedAndLetsTheFocusGo) {
  box.SetFocus();
  answer = base::kTypeMismatch;
  EXPECT_TRUE(bench.form.MoveFocus(&button));
  EXPECT_EQ(bench.errors, (std::vector<int>{13}));
}

TEST_F(FormRules, FocusOnItselfValidatesNothing) {
  box.SetFocus();
  box.SetFocus();
  EXPECT_EQ(validations, 0);
}

TEST_F(FormRules, UnloadRunsItsHandlerOnceWhileHandlersStillRunAndThenNone) {
  Handled changed;
  Handled unloaded;
  box.OnChange = changed.Handler();
  unloaded.action = [&] {
    box.SetText("saved");
    bench.form.Unload();
  };
  bench.form.OnUnload = unloaded.Handler();
  bench.form.Unload();
  bench.form.Unload();
  EXPECT_EQ(unloaded.count, 1);
  EXPECT_EQ(changed.count, 1);
  EXPECT_TRUE(bench.form.Unloaded());
  box.SetText("later");
  EXPECT_EQ(changed.count, 1);
  bench.form.Show();
  EXPECT_EQ(bench.errors.size(), 0U);
}

TEST_F(FormRules, ErrorsAfterUnloadAreDropped) {
  Handled failing;
  failing.answer = base::kOverflow;
  failing.action = [&] { bench.form.Unload(); };
  button.OnClick = failing.Handler();
  button.Press();
  EXPECT_EQ(failing.count, 1);
  EXPECT_TRUE(bench.errors.empty());
}

class Timers : public testing::Test {
 protected:
  Timers() {
    clock.Add(timer);
    timer.OnTimer = ticked.Handler();
  }
  ControlBench bench;
  SteppedTimers clock;
  Handled ticked;
  ui::Timer timer{bench.events, "Timer", 1000, false};
};

TEST_F(Timers, TickAfterEachFullIntervalWhileEnabled) {
  clock.AdvanceMs(5000);
  EXPECT_EQ(ticked.count, 0);
  timer.SetEnabled(true);
  clock.AdvanceMs(999);
  EXPECT_EQ(ticked.count, 0);
  clock.AdvanceMs(1);
  EXPECT_EQ(ticked.count, 1);
  clock.AdvanceMs(3000);
  EXPECT_EQ(ticked.count, 4);
}

TEST_F(Timers, NewIntervalAndFalseToTrueRestartTheCountAndTrueOntoTrueDoesNot) {
  timer.SetEnabled(true);
  clock.AdvanceMs(900);
  timer.SetEnabled(true);
  EXPECT_TRUE(timer.SetInterval(1000).Ok());
  clock.AdvanceMs(100);
  EXPECT_EQ(ticked.count, 1);
  clock.AdvanceMs(900);
  EXPECT_TRUE(timer.SetInterval(2000).Ok());
  clock.AdvanceMs(1999);
  EXPECT_EQ(ticked.count, 1);
  clock.AdvanceMs(1);
  EXPECT_EQ(ticked.count, 2);
  clock.AdvanceMs(1999);
  timer.SetEnabled(false);
  timer.SetEnabled(true);
  clock.AdvanceMs(1999);
  EXPECT_EQ(ticked.count, 2);
}

TEST_F(Timers, IntervalOfZeroNeverTicks) {
  EXPECT_TRUE(timer.SetInterval(0).Ok());
  timer.SetEnabled(true);
  clock.AdvanceMs(100000);
  EXPECT_EQ(ticked.count, 0);
  EXPECT_FALSE(timer.Running());
}

TEST_F(Timers, IntervalOutsideItsRangeIsRefusedAndNearestIsNot) {
  EXPECT_EQ(timer.SetInterval(-1).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(timer.SetInterval(65536).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(timer.Interval(), 1000);
  timer.SetNearestInterval(1e300);
  EXPECT_EQ(timer.Interval(), 65535);
  timer.SetNearestInterval(-1);
  EXPECT_EQ(timer.Interval(), 0);
}

TEST_F(Timers, NeverTicksInsideItsOwnHandlerAndThoseTicksAreLost) {
  ticked.action = [&] { clock.AdvanceMs(10000); };
  timer.SetEnabled(true);
  clock.AdvanceMs(1000);
  EXPECT_EQ(ticked.count, 1);
  ticked.action = nullptr;
  clock.AdvanceMs(1000);
  EXPECT_EQ(ticked.count, 2);
}

TEST_F(Timers, OtherTimersTickInsideAHandler) {
  ui::Timer other(bench.events, "Other", 110, true);
  Handled other_ticked;
  other.OnTimer = other_ticked.Handler();
  clock.Add(other);
  timer.SetEnabled(true);
  int inside = 0;
  ticked.action = [&] {
    const int before = other_ticked.count;
    clock.AdvanceMs(500);
    inside = other_ticked.count - before;
  };
  clock.AdvanceMs(1000);
  EXPECT_EQ(inside, 4) << "at 1100, 1210, 1320 and 1430";
}

TEST_F(Timers, NothingTicksAfterTheFormUnloaded) {
  timer.SetEnabled(true);
  bench.form.Unload();
  clock.AdvanceMs(10000);
  EXPECT_EQ(ticked.count, 0);
}

}  // namespace
}  // namespace qdix::tests
