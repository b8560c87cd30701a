// Resizable forms, Enter and Esc when no button takes them, and controls that move.
#include <gtest/gtest.h>

#include "tests/support/form_fixture.h"

namespace qdix::tests {
namespace {

TEST(FormSize, OnlyAFormWithAMinimumSizeIsResizable) {
  FormFixture fixture;
  EXPECT_FALSE(fixture.form.IsResizable());
  const ui::Form resizable(fixture.events, {.name = "Form", .place = {0, 0, 200, 100}},
                           {.width = 50, .height = 40});
  EXPECT_TRUE(resizable.IsResizable());
  EXPECT_EQ(resizable.Smallest().height, 40);
}

TEST(FormSize, NewSizeUpdatesThePlaceAndRunsTheHandlerOnce) {
  FormFixture fixture;
  Handled resized;
  fixture.form.OnResize = resized.Handler();
  fixture.form.UserResized({.width = 300, .height = 200});
  EXPECT_EQ(fixture.form.GetPlace(), (ui::Place{0, 0, 300, 200}));
  EXPECT_EQ(resized.count, 1);
  fixture.form.UserResized({.width = 300, .height = 200});
  EXPECT_EQ(resized.count, 1) << "the form already has that size";
}

TEST(FormSize, OnlyBoundsFromCodeReachThePeer) {
  FormFixture fixture;
  RecordingPeer peer;
  fixture.form.AttachPeer(&peer);
  EXPECT_EQ(fixture.form.Bounds(), std::nullopt);
  fixture.form.UserMoved({.left = 1, .top = 2, .width = 3, .height = 4});
  EXPECT_EQ(fixture.form.Bounds(), (ui::WindowBounds{1, 2, 3, 4}));
  EXPECT_TRUE(peer.changes.empty());
  fixture.form.SetBounds({.left = 5, .top = 6, .width = 7, .height = 8});
  EXPECT_EQ(peer.changes, std::vector<ui::Change>{ui::Change::kBounds});
  fixture.form.AttachPeer(nullptr);
}

TEST(FormSize, MaximisedFormCanBeReached) {
  FormFixture fixture;
  ui::Button button(fixture.form, {.name = "Command1"});
  fixture.form.UserChangedState(ui::WindowState::kMaximised);
  EXPECT_TRUE(button.Reachable());
}

TEST(FormSize, EscRunsItsHandler) {
  FormFixture fixture;
  Handled escaped;
  fixture.form.PressEscape();
  fixture.form.OnEscape = escaped.Handler();
  fixture.form.PressEscape();
  EXPECT_EQ(escaped.count, 1);
}

TEST(FormSize, MovedControlNotifiesItsPeerOnce) {
  FormFixture fixture;
  ui::Button button(fixture.form, {.name = "Command1", .place = {1, 2, 3, 4}});
  RecordingPeer peer;
  button.AttachPeer(&peer);
  button.SetPlace({1, 2, 3, 4});
  EXPECT_TRUE(peer.changes.empty());
  button.SetPlace({5, 2, 3, 4});
  EXPECT_EQ(peer.changes, std::vector<ui::Change>{ui::Change::kPlace});
  EXPECT_EQ(button.GetPlace(), (ui::Place{5, 2, 3, 4}));
}

TEST(FormSize, EnterInATextBoxRunsItsHandlerIfTheUserCanReachIt) {
  FormFixture fixture;
  ui::TextBox box(fixture.form, {.name = "Text1"});
  Handled entered;
  box.OnEnter = entered.Handler();
  box.PressEnter();
  EXPECT_EQ(entered.count, 1);
  box.SetEnabled(false);
  box.PressEnter();
  EXPECT_EQ(entered.count, 1);
  ui::Label label(fixture.form, {.name = "Label1"});
  label.PressEnter();
  EXPECT_EQ(entered.count, 1);
}

}  // namespace
}  // namespace qdix::tests
