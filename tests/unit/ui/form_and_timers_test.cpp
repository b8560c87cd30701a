// Form, focus, dispatcher, timers.
#include <gtest/gtest.h>

#include "tests/support/form_fixture.h"
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
  FormFixture fixture;
  ui::TextBox box{fixture.form, {.name = "Text"}};
  ui::Button button{fixture.form, {.name = "Button"}};
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

TEST_F(FormRules, WindowShownByOthersActivatesLikeTheFormsOwnAndIsLeftAlone) {
  ui::EventDispatcher events;
  ui::Form form(events, {.name = "Form"});
  ui::Button inside{form, {.name = "Inside"}};
  RecordingPeer peer;
  Handled activated;
  form.AttachPeer(&peer);
  form.OnActivate = activated.Handler();
  form.UserChangedVisible(true);
  EXPECT_TRUE(form.Shown());
  EXPECT_TRUE(inside.Reachable());
  EXPECT_EQ(activated.count, 1);
  form.UserChangedVisible(true);
  EXPECT_EQ(activated.count, 1);
  form.UserChangedVisible(false);
  EXPECT_FALSE(form.Shown());
  EXPECT_EQ(activated.count, 1);
  form.UserChangedVisible(true);
  EXPECT_EQ(activated.count, 2);
  EXPECT_TRUE(peer.changes.empty());
  form.Unload();
  form.UserChangedVisible(false);
  form.UserChangedVisible(true);
  EXPECT_EQ(activated.count, 2);
}

TEST_F(FormRules, ImmediateUnloadOvertakesAnUnloadDelayedByItsHandler) {
  Handled unloading;
  unloading.action = [&] {
    if (unloading.count > 1) return;
    fixture.form.Unload();
    EXPECT_FALSE(fixture.form.Unloaded()) << "the handler of the unload is still running";
    fixture.form.UnloadAtOnce();
    EXPECT_TRUE(fixture.form.Unloaded());
  };
  unloading.answer = base::kDivisionByZero;
  fixture.form.OnUnload = unloading.Handler();
  fixture.form.Unload();
  EXPECT_EQ(unloading.count, 2);
  EXPECT_EQ(fixture.errors.size(), 1U) << "the first unload ended after the stop";
  fixture.form.UnloadAtOnce();
  EXPECT_EQ(unloading.count, 2);
}

class Refusal {
 public:
  [[nodiscard]] base::Callback<bool()> Handler() {
    return base::Callback<bool()>::To<&Refusal::MayClose>(*this);
  }
  bool MayClose() {
    ++count;
    return answer;
  }
  int count = 0;
  bool answer = false;
};

TEST_F(FormRules, ClosingAsksAndUnloadingDoesNot) {
  Refusal refusal;
  Handled unloaded;
  fixture.form.OnUnload = unloaded.Handler();
  fixture.form.OnQueryClose = refusal.Handler();
  fixture.form.Close();
  EXPECT_EQ(refusal.count, 1);
  EXPECT_FALSE(fixture.form.Unloaded());
  refusal.answer = true;
  fixture.form.Close();
  EXPECT_TRUE(fixture.form.Unloaded());
  EXPECT_EQ(unloaded.count, 1);
  fixture.form.Close();
  EXPECT_EQ(refusal.count, 2) << "the form was asked after the end";
  FormFixture other;
  other.form.Close();
  EXPECT_TRUE(other.form.Unloaded()) << "there is no handler to ask";
}

TEST_F(FormRules, ShowingAShownFormBringsItsWindowToTheFront) {
  RecordingPeer peer;
  fixture.form.AttachPeer(&peer);
  fixture.form.Show();
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kVisible}));
}

TEST_F(FormRules, LeavingFocusIsValidatedBeforeItIsLost) {
  box.SetFocus();
  on_validate = [&] { EXPECT_EQ(lost.count, 0); };
  button.SetFocus();
  EXPECT_EQ(validations, 1);
  EXPECT_EQ(lost.count, 1);
  EXPECT_EQ(got.count, 1);
  EXPECT_TRUE(button.HasFocus());
}

TEST_F(FormRules, RefusingKeepsTheFocusAndTellsTheWindow) {
  RecordingPeer peer;
  box.SetFocus();
  box.AttachPeer(&peer);
  answer = false;
  EXPECT_FALSE(fixture.form.MoveFocus(&button));
  EXPECT_TRUE(box.HasFocus());
  EXPECT_EQ(lost.count, 0);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kFocus}));
}

TEST_F(FormRules, HandlerThatPutsTheFocusBackKeepsIt) {
  box.SetFocus();
  on_validate = [&] { box.SetFocus(); };
  EXPECT_FALSE(fixture.form.MoveFocus(&button));
  EXPECT_TRUE(box.HasFocus());
}

TEST_F(FormRules, ValidationErrorIsReportedAndLetsTheFocusGo) {
  box.SetFocus();
  answer = base::kPathNotFound;
  EXPECT_TRUE(fixture.form.MoveFocus(&button));
  EXPECT_EQ(fixture.errors, (std::vector<int>{76}));
}

TEST_F(FormRules, FocusOnItselfValidatesNothing) {
  box.SetFocus();
  box.SetFocus();
  EXPECT_EQ(validations, 0);
}

TEST_F(FormRules, UnloadRunsItsHandlerOnceAndThenNoOther) {
  Handled changed;
  Handled unloaded;
  box.OnChange = changed.Handler();
  unloaded.action = [&] {
    box.SetText("saved");
    fixture.form.Unload();
  };
  fixture.form.OnUnload = unloaded.Handler();
  fixture.form.Unload();
  fixture.form.Unload();
  EXPECT_EQ(unloaded.count, 1);
  EXPECT_EQ(changed.count, 1);
  EXPECT_TRUE(fixture.form.Unloaded());
  box.SetText("later");
  EXPECT_EQ(changed.count, 1);
  fixture.form.Show();
  EXPECT_EQ(fixture.errors.size(), 0U);
}

TEST_F(FormRules, ErrorsAfterUnloadAreDropped) {
  Handled failing;
  failing.answer = base::kOverflow;
  failing.action = [&] { fixture.form.Unload(); };
  button.OnClick = failing.Handler();
  button.Press();
  EXPECT_EQ(failing.count, 1);
  EXPECT_TRUE(fixture.errors.empty());
}

class RecordingFormPeer final : public ui::FormPeer {
 public:
  void PopUp(ui::MenuItem& menu) override { shown.push_back(&menu); }
  void FormUnloaded() override { ++unloads; }
  std::vector<ui::MenuItem*> shown;
  int unloads = 0;
};

TEST_F(FormRules, PeerIsNotifiedOfTheUnloadOnceAndAfterTheHandler) {
  RecordingFormPeer peer;
  fixture.form.AttachFormPeer(&peer);
  Handled unloaded;
  unloaded.action = [&] {
    EXPECT_EQ(peer.unloads, 0);
    EXPECT_FALSE(fixture.form.Unloaded());
  };
  fixture.form.OnUnload = unloaded.Handler();
  fixture.form.Unload();
  fixture.form.Unload();
  EXPECT_EQ(unloaded.count, 1);
  EXPECT_EQ(peer.unloads, 1);
}

TEST_F(FormRules, FailingUnloadHandlerStillUnloads) {
  Handled unloaded;
  unloaded.answer = base::kPathNotFound;
  fixture.form.OnUnload = unloaded.Handler();
  fixture.form.Unload();
  EXPECT_TRUE(fixture.form.Unloaded());
  EXPECT_EQ(fixture.errors, (std::vector<int>{76}));
}

TEST_F(FormRules, MenuPopsUpAtThePeerUntilTheFormUnloaded) {
  RecordingFormPeer peer;
  ui::MenuItem menu(fixture.events, "menu", "Menu");
  fixture.form.PopUpMenu(menu);
  fixture.form.AttachFormPeer(&peer);
  fixture.form.PopUpMenu(menu);
  EXPECT_EQ(peer.shown, (std::vector<ui::MenuItem*>{&menu}));
  fixture.form.Unload();
  fixture.form.PopUpMenu(menu);
  EXPECT_EQ(peer.shown.size(), 1U);
}

TEST_F(FormRules, UnloadedFormIsNeitherShownNorMinimised) {
  Handled activated;
  fixture.form.Hide();
  fixture.form.OnActivate = activated.Handler();
  fixture.form.Unload();
  fixture.form.Show();
  fixture.form.SetState(ui::WindowState::kMinimised);
  EXPECT_FALSE(fixture.form.Shown());
  EXPECT_EQ(fixture.form.State(), ui::WindowState::kNormal);
}

TEST_F(FormRules, PeerIsNotifiedOfAStateFromCodeNotFromTheUser) {
  RecordingPeer peer;
  fixture.form.AttachPeer(&peer);
  fixture.form.SetState(ui::WindowState::kMinimised);
  fixture.form.SetState(ui::WindowState::kMinimised);
  fixture.form.UserChangedState(ui::WindowState::kNormal);
  EXPECT_EQ(fixture.form.State(), ui::WindowState::kNormal);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kWindowState}));
}

struct PointerLog {
  std::vector<double> numbers;
  base::Status Moved(int button, int shift, double x_twips, double y_twips) {
    numbers = {static_cast<double>(button), static_cast<double>(shift), x_twips, y_twips};
    return base::kDone;
  }
};

TEST_F(FormRules, PointerPositionArrivesWithButtonAndShift) {
  PointerLog log;
  fixture.form.OnMouseMove =
      base::Callback<base::Status(int, int, double, double)>::To<&PointerLog::Moved>(log);
  fixture.form.PointerMoved(1, 2, 7725, -15);
  EXPECT_EQ(log.numbers, (std::vector<double>{1, 2, 7725, -15}));
}

TEST_F(FormRules, TimersKeepTickingWhileTheFormIsHidden) {
  SteppedTimers clock;
  ui::Timer timer(fixture.events, "Timer", 100, true);
  Handled ticked;
  timer.OnTimer = ticked.Handler();
  clock.Add(timer);
  fixture.form.Hide();
  clock.AdvanceMs(300);
  EXPECT_EQ(ticked.count, 3);
}

class Timers : public testing::Test {
 protected:
  Timers() {
    clock.Add(timer);
    timer.OnTimer = ticked.Handler();
  }
  FormFixture fixture;
  SteppedTimers clock;
  Handled ticked;
  ui::Timer timer{fixture.events, "Timer", 1000, false};
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

TEST_F(Timers, NewIntervalAndFalseToTrueRestartTheCountAndTrueToTrueDoesNot) {
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

TEST_F(Timers, IntervalOutsideItsRangeIsRefusedUnlessTheNearestIsRequested) {
  EXPECT_EQ(timer.SetInterval(-1).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(timer.SetInterval(65536).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(timer.Interval(), 1000);
  timer.SetNearestInterval(1e300);
  EXPECT_EQ(timer.Interval(), 65535);
  timer.SetNearestInterval(-1);
  EXPECT_EQ(timer.Interval(), 0);
}

TEST_F(Timers, TicksDueInsideTheOwnHandlerAreLost) {
  ticked.action = [&] { clock.AdvanceMs(10000); };
  timer.SetEnabled(true);
  clock.AdvanceMs(1000);
  EXPECT_EQ(ticked.count, 1);
  ticked.action = nullptr;
  clock.AdvanceMs(1000);
  EXPECT_EQ(ticked.count, 2);
}

TEST_F(Timers, OtherTimersTickInsideAHandler) {
  ui::Timer other(fixture.events, "Other", 110, true);
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
  EXPECT_EQ(inside, 4) << "the ticks are at 1100, 1210, 1320 and 1430";
}

TEST_F(Timers, ElapsedCountOfAStoppedTimerIsNoTick) {
  timer.Elapse();
  EXPECT_EQ(ticked.count, 0);
}

TEST_F(Timers, HandlerThatStopsItsTimerStopsIt) {
  ticked.action = [&] { timer.SetEnabled(false); };
  timer.SetEnabled(true);
  clock.AdvanceMs(5000);
  EXPECT_EQ(ticked.count, 1);
}

TEST_F(Timers, FailingHandlerIsReportedAndTheTimerContinues) {
  ticked.answer = base::kOverflow;
  timer.SetEnabled(true);
  clock.AdvanceMs(2000);
  EXPECT_EQ(fixture.errors, (std::vector<int>{6, 6}));
}

TEST_F(Timers, LongestIntervalIsAccepted) {
  EXPECT_TRUE(timer.SetInterval(ui::Timer::kMaxIntervalMs).Ok());
  timer.SetEnabled(true);
  clock.AdvanceMs(65534);
  EXPECT_EQ(ticked.count, 0);
  clock.AdvanceMs(1);
  EXPECT_EQ(ticked.count, 1);
}

/// Counts how often a peer is told to restart its count.
struct RestartCounter final : ui::TimerPeer {
  void TimerRestarted(ui::Timer& /*timer*/) override { ++restarts; }
  int restarts = 0;
};

TEST_F(Timers, PeerIsNotifiedOfEachRestartAndEachStop) {
  RestartCounter peer;
  timer.AttachPeer(&peer);
  EXPECT_EQ(peer.restarts, 1) << "a timer may already be running";
  timer.SetEnabled(true);
  timer.SetEnabled(true);
  EXPECT_EQ(peer.restarts, 2);
  EXPECT_TRUE(timer.SetInterval(1000).Ok());
  EXPECT_EQ(peer.restarts, 2);
  EXPECT_TRUE(timer.SetInterval(500).Ok());
  EXPECT_EQ(peer.restarts, 3);
  timer.SetEnabled(false);
  EXPECT_EQ(peer.restarts, 4);
  timer.AttachPeer(nullptr);
  timer.SetEnabled(true);
  EXPECT_EQ(peer.restarts, 4);
}

TEST_F(Timers, NothingTicksAfterTheFormUnloaded) {
  timer.SetEnabled(true);
  fixture.form.Unload();
  clock.AdvanceMs(10000);
  EXPECT_EQ(ticked.count, 0);
}

}  // namespace
}  // namespace qdix::tests
