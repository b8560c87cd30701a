// What handlers may do during a focus move: move the focus themselves, make controls unreachable, unload the
// form.
#include <gtest/gtest.h>

#include <array>

#include "tests/support/form_fixture.h"

namespace qdix::tests {
namespace {

constexpr std::array<ui::Design, 2> kPages{{{.name = "One"}, {.name = "Two"}}};

class FocusHandlers : public testing::Test {
 public:
  base::Result<bool> Validate() {
    ++validations;
    if (on_validate) on_validate();
    return answer;
  }

 protected:
  FocusHandlers() {
    left.OnValidate = base::Callback<base::Result<bool>()>::To<&FocusHandlers::Validate>(*this);
    left.OnLostFocus = lost.Handler();
    target.OnGotFocus = got.Handler();
    target.OnLostFocus = target_lost.Handler();
    left.SetFocus();
  }

  FormFixture fixture;
  ui::TabStrip strip{fixture.form, {.name = "Strip"}, kPages};
  ui::TextBox left{strip.Page(0), {.name = "Left"}};
  ui::Button target{fixture.form, {.name = "Target"}};
  ui::Button other{fixture.form, {.name = "Other"}};
  Handled lost;
  Handled got;
  Handled target_lost;
  base::Result<bool> answer = true;
  std::function<void()> on_validate;
  int validations = 0;
};

TEST_F(FocusHandlers, TakingTheFocusFromAllControlsValidatesAndNotifiesTheOldControl) {
  EXPECT_TRUE(fixture.form.MoveFocus(nullptr));
  EXPECT_EQ(fixture.form.Focused(), nullptr);
  EXPECT_EQ(validations, 1);
  EXPECT_EQ(lost.count, 1);
}

TEST_F(FocusHandlers, UnreachableControlRefusesAndTheFocusStays) {
  target.SetEnabled(false);
  EXPECT_FALSE(fixture.form.MoveFocus(&target));
  EXPECT_TRUE(left.HasFocus());
  EXPECT_EQ(validations, 0);
}

TEST_F(FocusHandlers, GotFocusNotifiesThePeerBeforeTheHandlerRuns) {
  RecordingPeer peer;
  target.AttachPeer(&peer);
  got.action = [&] { EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kFocus})); };
  target.SetFocus();
  EXPECT_EQ(got.count, 1);
}

TEST_F(FocusHandlers, ValidationCannotSendTheFocusToAThirdControl) {
  on_validate = [&] { other.SetFocus(); };
  EXPECT_TRUE(fixture.form.MoveFocus(&target));
  EXPECT_TRUE(target.HasFocus());
  EXPECT_EQ(validations, 1) << "not validated again from inside";
  EXPECT_EQ(lost.count, 1);
}

TEST_F(FocusHandlers, ValidationThatDisablesTheTargetLeavesNoFocus) {
  on_validate = [&] { target.SetEnabled(false); };
  EXPECT_FALSE(fixture.form.MoveFocus(&target));
  EXPECT_EQ(fixture.form.Focused(), nullptr);
  EXPECT_EQ(lost.count, 1);
  EXPECT_EQ(got.count, 0);
}

TEST_F(FocusHandlers, ValidationThatClosesItsOwnPageLosesTheFocusOnce) {
  on_validate = [&] { EXPECT_TRUE(strip.SetTab(1).Ok()); };
  EXPECT_TRUE(fixture.form.MoveFocus(&target));
  EXPECT_EQ(lost.count, 1);
  EXPECT_TRUE(target.HasFocus());
}

TEST_F(FocusHandlers, RefusingControlThatClosedItsOwnPageDoesNotGetTheFocusBack) {
  RecordingPeer peer;
  left.AttachPeer(&peer);
  answer = false;
  on_validate = [&] { EXPECT_TRUE(strip.SetTab(1).Ok()); };
  EXPECT_TRUE(fixture.form.MoveFocus(&target));
  EXPECT_TRUE(peer.changes.empty());
  EXPECT_TRUE(target.HasFocus());
}

TEST_F(FocusHandlers, LostFocusMaySendTheFocusElsewhere) {
  lost.action = [&] { other.SetFocus(); };
  EXPECT_FALSE(fixture.form.MoveFocus(&target));
  EXPECT_TRUE(other.HasFocus());
  EXPECT_EQ(got.count, 0);
}

TEST_F(FocusHandlers, LostFocusMaySendTheFocusWhereItIsGoingAnyway) {
  lost.action = [&] { target.SetFocus(); };
  EXPECT_TRUE(fixture.form.MoveFocus(&target));
  EXPECT_TRUE(target.HasFocus());
  EXPECT_EQ(got.count, 1);
}

TEST_F(FocusHandlers, ControlWhosePageClosesMaySendTheFocusElsewhere) {
  lost.action = [&] {
    EXPECT_EQ(fixture.form.Focused(), nullptr);
    other.SetFocus();
  };
  EXPECT_TRUE(strip.SetTab(1).Ok());
  EXPECT_EQ(lost.count, 1);
  EXPECT_TRUE(other.HasFocus());
}

TEST_F(FocusHandlers, GotFocusMaySendTheFocusOn) {
  got.action = [&] { other.SetFocus(); };
  EXPECT_FALSE(fixture.form.MoveFocus(&target));
  EXPECT_TRUE(other.HasFocus());
  EXPECT_EQ(target_lost.count, 1);
}

TEST_F(FocusHandlers, ValidationThatUnloadsTheFormEndsTheMove) {
  on_validate = [&] { fixture.form.Unload(); };
  EXPECT_FALSE(fixture.form.MoveFocus(&target));
  EXPECT_EQ(lost.count, 0);
  EXPECT_EQ(got.count, 0);
  EXPECT_FALSE(target.HasFocus());
}

TEST_F(FocusHandlers, NothingIsValidatedAfterUnload) {
  fixture.form.Unload();
  EXPECT_TRUE(fixture.form.MoveFocus(nullptr));
  EXPECT_EQ(validations, 0);
  EXPECT_EQ(lost.count, 0);
}

TEST_F(FocusHandlers, FocusOfAReachableControlIsNotDropped) {
  fixture.form.DropUnreachableFocus();
  EXPECT_TRUE(left.HasFocus());
  EXPECT_EQ(lost.count, 0);
}

TEST_F(FocusHandlers, PressingAButtonOrAnOptionMovesNoFocus) {
  target.Press();
  EXPECT_TRUE(left.HasFocus());
  EXPECT_EQ(validations, 0);
}

TEST_F(FocusHandlers, TabChosenByTheUserValidatesBeforeThePageChanges) {
  int open_page = -1;
  on_validate = [&] { open_page = strip.Tab(); };
  strip.ChooseTab(1);
  EXPECT_EQ(open_page, 0);
  EXPECT_EQ(validations, 1);
  EXPECT_EQ(strip.Tab(), 1);
  EXPECT_TRUE(strip.HasFocus());
}

TEST_F(FocusHandlers, RefusedTabTellsThePeerOfTheStripToGoBack) {
  RecordingPeer peer;
  strip.AttachPeer(&peer);
  answer = false;
  strip.ChooseTab(1);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kValue}));
}

TEST_F(FocusHandlers, ChoosingAnOpenOrMissingTabLeavesTheFocusAlone) {
  for (const int index : {0, -1, 2}) {
    strip.ChooseTab(index);
    EXPECT_TRUE(left.HasFocus()) << index;
  }
  EXPECT_EQ(validations, 0);
}

TEST_F(FocusHandlers, TabOfADisabledStripCannotBeChosen) {
  strip.SetEnabled(false);
  strip.ChooseTab(1);
  EXPECT_EQ(strip.Tab(), 0);
}

TEST_F(FocusHandlers, TabIsNotChosenWhenValidationUnloadsTheForm) {
  on_validate = [&] { fixture.form.Unload(); };
  strip.ChooseTab(1);
  EXPECT_EQ(strip.Tab(), 0);
}

}  // namespace
}  // namespace qdix::tests
