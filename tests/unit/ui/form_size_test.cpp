// Resizable forms, Enter and Esc when no button takes them, and controls that move.
#include <gtest/gtest.h>

#include "tests/support/control_bench.h"

namespace qdix::tests {
namespace {

TEST(FormSize, OnlyAFormWithAMinimumSizeIsResizable) {
  ControlBench bench;
  EXPECT_FALSE(bench.form.IsResizable());
  const ui::Form resizable(bench.events, {.name = "Form", .place = {0, 0, 200, 100}},
                           {.width = 50, .height = 40});
  EXPECT_TRUE(resizable.IsResizable());
  EXPECT_EQ(resizable.Smallest().height, 40);
}

TEST(FormSize, NewSizeUpdatesThePlaceAndRunsTheHandlerOnce) {
  ControlBench bench;
  Handled resized;
  bench.form.OnResize = resized.Handler();
  bench.form.UserResized({.width = 300, .height = 200});
  EXPECT_EQ(bench.form.GetPlace(), (ui::Place{0, 0, 300, 200}));
  EXPECT_EQ(resized.count, 1);
  bench.form.UserResized({.width = 300, .height = 200});
  EXPECT_EQ(resized.count, 1) << "the form already has that size";
}

TEST(FormSize, OnlyBoundsFromCodeReachThePeer) {
  ControlBench bench;
  NotingPeer peer;
  bench.form.AttachPeer(&peer);
  EXPECT_EQ(bench.form.Bounds(), std::nullopt);
  bench.form.UserMoved({.left = 1, .top = 2, .width = 3, .height = 4});
  EXPECT_EQ(bench.form.Bounds(), (ui::WindowBounds{1, 2, 3, 4}));
  EXPECT_TRUE(peer.changes.empty());
  bench.form.SetBounds({.left = 5, .top = 6, .width = 7, .height = 8});
  EXPECT_EQ(peer.changes, std::vector<ui::Change>{ui::Change::kBounds});
  bench.form.AttachPeer(nullptr);
}

TEST(FormSize, MaximisedFormCanBeReached) {
  ControlBench bench;
  ui::Button button(bench.form, {.name = "Command1"});
  bench.form.UserChangedState(ui::WindowState::kMaximised);
  EXPECT_TRUE(button.Reachable());
}

TEST(FormSize, EscRunsItsHandler) {
  ControlBench bench;
  Handled escaped;
  bench.form.PressEscape();
  bench.form.OnEscape = escaped.Handler();
  bench.form.PressEscape();
  EXPECT_EQ(escaped.count, 1);
}

TEST(FormSize, MovedControlNotifiesItsPeerOnce) {
  ControlBench bench;
  ui::Button button(bench.form, {.name = "Command1", .place = {1, 2, 3, 4}});
  NotingPeer peer;
  button.AttachPeer(&peer);
  button.SetPlace({1, 2, 3, 4});
  EXPECT_TRUE(peer.changes.empty());
  button.SetPlace({5, 2, 3, 4});
  EXPECT_EQ(peer.changes, std::vector<ui::Change>{ui::Change::kPlace});
  EXPECT_EQ(button.GetPlace(), (ui::Place{5, 2, 3, 4}));
}

TEST(FormSize, EnterInATextBoxRunsItsHandlerIfTheUserCanReachIt) {
  ControlBench bench;
  ui::TextBox box(bench.form, {.name = "Text1"});
  Handled entered;
  box.OnEnter = entered.Handler();
  box.PressEnter();
  EXPECT_EQ(entered.count, 1);
  box.SetEnabled(false);
  box.PressEnter();
  EXPECT_EQ(entered.count, 1);
  ui::Label label(bench.form, {.name = "Label1"});
  label.PressEnter();
  EXPECT_EQ(entered.count, 1);
}

}  // namespace
}  // namespace qdix::tests
