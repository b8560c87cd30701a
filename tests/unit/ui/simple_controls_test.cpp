// Check box, option button, button, and the properties common to all controls.
#include <gtest/gtest.h>

#include "tests/support/form_fixture.h"

namespace qdix::tests {
namespace {

class SimpleControls : public testing::Test {
 protected:
  FormFixture fixture;
  Handled clicked;
};

TEST_F(SimpleControls, CheckBoxFiresOnlyWhenItsValueChanges) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  box.OnClick = clicked.Handler();
  EXPECT_TRUE(box.SetValue(1).Ok());
  EXPECT_TRUE(box.SetValue(1).Ok());
  EXPECT_EQ(clicked.count, 1);
  EXPECT_TRUE(box.SetValue(2).Ok());
  EXPECT_FALSE(box.Ticked());
  EXPECT_TRUE(box.SetValue(0).Ok());
  EXPECT_EQ(clicked.count, 3);
}

TEST_F(SimpleControls, CheckBoxRefusesOtherValues) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  box.OnClick = clicked.Handler();
  EXPECT_EQ(box.SetValue(3).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(box.SetValue(-1).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(clicked.count, 0);
}

TEST_F(SimpleControls, HandlerRunsInsideTheAssignmentAfterTheValueChanged) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  int seen = -1;
  clicked.action = [&] { seen = box.Value(); };
  box.OnClick = clicked.Handler();
  box.SetTicked(true);
  EXPECT_EQ(seen, 1);
}

TEST_F(SimpleControls, HandlerMayChangeTheSameControlAgain) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  clicked.action = [&] { box.SetTicked(false); };
  box.OnClick = clicked.Handler();
  box.SetTicked(true);
  EXPECT_EQ(box.Value(), 0);
  EXPECT_EQ(clicked.count, 2);
}

TEST_F(SimpleControls, HandlersErrorGoesToTheDispatcherNotToTheAssignment) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  clicked.answer = base::kOverflow;
  box.OnClick = clicked.Handler();
  EXPECT_TRUE(box.SetValue(1).Ok());
  EXPECT_EQ(fixture.errors, (std::vector<int>{6}));
}

TEST_F(SimpleControls, PressTicksAClearBoxAndClearsAnyOther) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  box.Press();
  EXPECT_EQ(box.Value(), 1);
  box.Press();
  EXPECT_EQ(box.Value(), 0);
  EXPECT_TRUE(box.SetValue(2).Ok());
  box.Press();
  EXPECT_EQ(box.Value(), 0);
}

TEST_F(SimpleControls, OptionsOfOneContainerAreExclusiveAndClearedSilently) {
  ui::Frame frame(fixture.form, {.name = "Frame"});
  ui::Frame other(fixture.form, {.name = "Other"});
  ui::OptionButton a(frame, {.name = "A"});
  ui::OptionButton b(frame, {.name = "B"});
  ui::OptionButton elsewhere(other, {.name = "C"});
  Handled a_clicked;
  Handled b_clicked;
  a.OnClick = a_clicked.Handler();
  b.OnClick = b_clicked.Handler();
  elsewhere.SetSelected(true);
  a.SetSelected(true);
  a.SetSelected(true);
  b.Press();
  EXPECT_FALSE(a.Selected());
  EXPECT_TRUE(b.Selected());
  EXPECT_TRUE(elsewhere.Selected());
  EXPECT_EQ(a_clicked.count, 1);
  EXPECT_EQ(b_clicked.count, 1);
  b.SetSelected(false);
  EXPECT_EQ(b_clicked.count, 1) << "clearing fires no event";
}

TEST_F(SimpleControls, OptionsHandlerSeesTheOthersCleared) {
  ui::OptionButton a(fixture.form, {.name = "A"});
  ui::OptionButton b(fixture.form, {.name = "B"});
  a.SetSelected(true);
  bool a_was_selected = true;
  clicked.action = [&] { a_was_selected = a.Selected(); };
  b.OnClick = clicked.Handler();
  b.SetSelected(true);
  EXPECT_FALSE(a_was_selected);
}

struct Obstacle {
  const char* what;
  void (*put)(FormFixture&, ui::Frame&, ui::Button&);
};
class Unreachable : public SimpleControls, public testing::WithParamInterface<Obstacle> {};
TEST_P(Unreachable, ControlDoesNothing) {
  ui::Frame frame(fixture.form, {.name = "Frame"});
  ui::Button button(frame, {.name = "Button"});
  button.OnClick = clicked.Handler();
  button.Press();
  ASSERT_EQ(clicked.count, 1);
  GetParam().put(fixture, frame, button);
  button.Press();
  button.SetFocus();
  EXPECT_EQ(clicked.count, 1);
  EXPECT_FALSE(button.HasFocus());
}
INSTANTIATE_TEST_SUITE_P(
    Obstacles, Unreachable,
    testing::Values(
        Obstacle{"disabled", [](FormFixture&, ui::Frame&, ui::Button& button) { button.SetEnabled(false); }},
        Obstacle{"hidden", [](FormFixture&, ui::Frame&, ui::Button& button) { button.SetVisible(false); }},
        Obstacle{"frame disabled",
                 [](FormFixture&, ui::Frame& frame, ui::Button&) { frame.SetEnabled(false); }},
        Obstacle{"frame hidden",
                 [](FormFixture&, ui::Frame& frame, ui::Button&) { frame.SetVisible(false); }},
        Obstacle{"form hidden", [](FormFixture& fixture, ui::Frame&, ui::Button&) { fixture.form.Hide(); }},
        Obstacle{"form minimised", [](FormFixture& fixture, ui::Frame&,
                                      ui::Button&) { fixture.form.SetState(ui::WindowState::kMinimised); }},
        Obstacle{"form unloaded",
                 [](FormFixture& fixture, ui::Frame&, ui::Button&) { fixture.form.Unload(); }}));

TEST_F(SimpleControls, PeerIsNotifiedOfEachChangeAndNothingElse) {
  ui::Label label(fixture.form, {.name = "Label", .caption = "a"});
  RecordingPeer peer;
  label.AttachPeer(&peer);
  label.SetCaption("a");
  label.SetEnabled(true);
  label.SetVisible(true);
  label.SetBackColour(ui::kButtonFace);
  EXPECT_TRUE(peer.changes.empty());
  label.SetCaption("b");
  label.SetEnabled(false);
  label.SetVisible(false);
  label.SetBackColour(ui::kMenuBackground);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kCaption, ui::Change::kEnabled,
                                                   ui::Change::kVisible, ui::Change::kColour}));
}

TEST_F(SimpleControls, DisablingAFrameNotifiesThePeersInsideIt) {
  ui::Frame frame(fixture.form, {.name = "Frame"});
  ui::Button button(frame, {.name = "Button"});
  RecordingPeer peer;
  button.AttachPeer(&peer);
  frame.SetEnabled(false);
  EXPECT_EQ(peer.changes, (std::vector<ui::Change>{ui::Change::kEnabled}));
  EXPECT_TRUE(button.Enabled());
  EXPECT_FALSE(button.EffectivelyEnabled());
}

TEST_F(SimpleControls, TextFieldsAndListsAreWhiteAndOtherControlsGrey) {
  EXPECT_EQ(ui::TextBox(fixture.form, {.name = "Text"}).BackColour(), ui::kWindowBackground);
  EXPECT_EQ(ui::ListBox(fixture.form, {.name = "List"}).BackColour(), ui::kWindowBackground);
  EXPECT_EQ(ui::DropDownList(fixture.form, {.name = "Drop"}).BackColour(), ui::kWindowBackground);
  EXPECT_EQ(ui::DropDownCombo(fixture.form, {.name = "Combo"}).BackColour(), ui::kWindowBackground);
  EXPECT_EQ(ui::Label(fixture.form, {.name = "Label"}).BackColour(), ui::kButtonFace);
  EXPECT_EQ(fixture.form.BackColour(), ui::kButtonFace);
}

TEST_F(SimpleControls, ControlStartsAsItWasDesigned) {
  const ui::Button button(fixture.form,
                          {.name = "Button",
                           .caption = "Go",
                           .tool_tip = "Tip",
                           .place = {1, 2, 3, 4},
                           .access_key = 'G',
                           .visible = false,
                           .enabled = false},
                          ui::ButtonRole::kCancel);
  EXPECT_EQ(button.Caption(), "Go");
  EXPECT_EQ(button.AccessKey(), 'G');
  EXPECT_EQ(button.ToolTip(), "Tip");
  EXPECT_EQ(button.GetPlace().height, 4);
  EXPECT_FALSE(button.Visible());
  EXPECT_FALSE(button.Enabled());
  EXPECT_EQ(button.Role(), ui::ButtonRole::kCancel);
  EXPECT_EQ(button.Parent(), &fixture.form);
  EXPECT_EQ(&button.GetForm(), &fixture.form);
}

TEST_F(SimpleControls, PeersOfCheckBoxAndOptionsAreNotifiedOfEachChangedValue) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  ui::OptionButton a(fixture.form, {.name = "A"});
  ui::OptionButton b(fixture.form, {.name = "B"});
  ui::OptionButton untouched(fixture.form, {.name = "C"});
  a.SetSelected(true);
  RecordingPeer box_peer;
  RecordingPeer a_peer;
  RecordingPeer b_peer;
  RecordingPeer untouched_peer;
  box.AttachPeer(&box_peer);
  a.AttachPeer(&a_peer);
  b.AttachPeer(&b_peer);
  untouched.AttachPeer(&untouched_peer);
  box.SetTicked(true);
  b.SetSelected(true);
  const std::vector<ui::Change> value_once{ui::Change::kValue};
  EXPECT_EQ(box_peer.changes, value_once);
  EXPECT_EQ(a_peer.changes, value_once);
  EXPECT_EQ(b_peer.changes, value_once);
  EXPECT_TRUE(untouched_peer.changes.empty());
}

TEST_F(SimpleControls, PeerIsNotifiedBeforeTheHandlerRuns) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  RecordingPeer peer;
  box.AttachPeer(&peer);
  clicked.action = [&] { EXPECT_EQ(peer.changes.size(), 1U); };
  box.OnClick = clicked.Handler();
  box.SetTicked(true);
  EXPECT_EQ(clicked.count, 1);
}

TEST_F(SimpleControls, OptionsHandlerMayChooseAnother) {
  ui::OptionButton a(fixture.form, {.name = "A"});
  ui::OptionButton b(fixture.form, {.name = "B"});
  clicked.action = [&] { a.SetSelected(true); };
  b.OnClick = clicked.Handler();
  b.Press();
  EXPECT_TRUE(a.Selected());
  EXPECT_FALSE(b.Selected());
}

TEST_F(SimpleControls, UnreachableCheckBoxAndOptionKeepTheirValues) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  ui::OptionButton option(fixture.form, {.name = "Option"});
  fixture.form.SetEnabled(false);
  box.Press();
  option.Press();
  EXPECT_EQ(box.Value(), 0);
  EXPECT_FALSE(option.Selected());
}

TEST_F(SimpleControls, HandlerThatUnloadsTheFormIsTheLastToRun) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  clicked.action = [&] { fixture.form.Unload(); };
  box.OnClick = clicked.Handler();
  box.SetTicked(true);
  box.SetTicked(false);
  EXPECT_EQ(clicked.count, 1);
  EXPECT_EQ(box.Value(), 0) << "assignments still work, without handlers";
}

TEST_F(SimpleControls, ControlsAreFoundByNameAtAnyDepth) {
  ui::Frame frame(fixture.form, {.name = "Frame"});
  ui::Button button(frame, {.name = "Button"});
  EXPECT_EQ(fixture.form.Find("Button"), &button);
  EXPECT_EQ(fixture.form.Find("Missing"), nullptr);
}

TEST_F(SimpleControls, ChildrenAreInOrderOfCreation) {
  ui::Button first(fixture.form, {.name = "First"});
  ui::Label second(fixture.form, {.name = "Second"});
  EXPECT_EQ(fixture.form.Children(), (std::vector<ui::Control*>{&first, &second}));
}

}  // namespace
}  // namespace qdix::tests
