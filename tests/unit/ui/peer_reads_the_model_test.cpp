// The model already has its new state when it notifies a peer of a change, because the peer copies that state
// to the window.
#include <gtest/gtest.h>

#include "controls/meter3.h"
#include "tests/support/form_fixture.h"
#include "ui/timer.h"

namespace qdix::tests {
namespace {

/// Reads the model at each change, as a window would.
class ReadingPeer final : public ui::ControlPeer {
 public:
  explicit ReadingPeer(std::function<std::string()> read) : read_(std::move(read)) {}
  void ControlChanged(ui::Control& /*control*/, ui::Change /*change*/) override { seen.push_back(read_()); }
  std::vector<std::string> seen;

 private:
  std::function<std::string()> read_;
};

using Seen = std::vector<std::string>;

class PeerReadsTheModel : public testing::Test {
 protected:
  FormFixture fixture;
};

TEST_F(PeerReadsTheModel, CommonPropertiesOfControls) {
  ui::Label label(fixture.form, {.name = "Label", .caption = "old", .place = {1, 1, 1, 1}});
  ReadingPeer peer([&label] {
    return label.Caption() + (label.Enabled() ? " enabled" : " disabled") +
           (label.Visible() ? " shown " : " hidden ") + std::to_string(label.BackColour()) + " " +
           std::to_string(label.GetPlace().left);
  });
  label.SetBackColour(1);
  label.AttachPeer(&peer);
  label.SetCaption("new");
  label.SetEnabled(false);
  label.SetVisible(false);
  label.SetBackColour(2);
  label.SetPlace({3, 1, 1, 1});
  EXPECT_EQ(peer.seen, (Seen{"new enabled shown 1 1", "new disabled shown 1 1", "new disabled hidden 1 1",
                             "new disabled hidden 2 1", "new disabled hidden 2 3"}));
}

TEST_F(PeerReadsTheModel, ValuesOfBoxesAndOptions) {
  ui::CheckBox box(fixture.form, {.name = "Box"});
  ui::OptionButton one(fixture.form, {.name = "One"});
  ui::OptionButton other(fixture.form, {.name = "Other"});
  ReadingPeer box_peer([&box] { return std::to_string(box.Value()); });
  const auto selected = [&one, &other] {
    return std::string(one.Selected() ? "one" : "-") + (other.Selected() ? "other" : "-");
  };
  ReadingPeer one_peer(selected);
  ReadingPeer other_peer(selected);
  box.AttachPeer(&box_peer);
  one.AttachPeer(&one_peer);
  other.AttachPeer(&other_peer);
  EXPECT_TRUE(box.SetValue(2).Ok());
  box.SetTicked(false);
  one.SetSelected(true);
  other.SetSelected(true);
  EXPECT_EQ(box_peer.seen, (Seen{"2", "0"}));
  EXPECT_EQ(one_peer.seen, (Seen{"one-", "--"}));
  EXPECT_EQ(other_peer.seen, (Seen{"-other"}));
}

TEST_F(PeerReadsTheModel, TextAndSelectionOfATextBox) {
  ui::TextBox box(fixture.form, {.name = "Text"}, 5);
  box.SetText("old");
  box.SelectAll();
  ReadingPeer peer([&box] {
    return box.Text() + " " + std::to_string(box.SelectionStart()) + "+" +
           std::to_string(box.SelectionLength());
  });
  box.AttachPeer(&peer);
  box.SetText("new");
  box.SelectAll();
  EXPECT_TRUE(box.Type('x'));
  EXPECT_TRUE(box.Type('y'));
  EXPECT_EQ(peer.seen, (Seen{"new 0+0", "new 0+3", "x 1+0", "xy 2+0"}));
}

TEST_F(PeerReadsTheModel, RowsAndSelectionOfAList) {
  ui::ListBox list(fixture.form, {.name = "List"});
  ReadingPeer peer(
      [&list] { return std::to_string(list.Count()) + " " + std::to_string(list.SelectedIndex()); });
  list.AttachPeer(&peer);
  list.AddItem("a");
  list.AddItem("b");
  EXPECT_TRUE(list.SetSelectedIndex(1).Ok());
  list.Clear();
  EXPECT_EQ(peer.seen, (Seen{"1 -1", "2 -1", "2 1", "0 -1"}));
}

TEST_F(PeerReadsTheModel, TextOfAComboWhoseRowWasChosen) {
  ui::DropDownCombo combo(fixture.form, {.name = "Combo"});
  combo.AddItem("a");
  combo.AddItem("b");
  combo.SetText("a");
  const auto read = [&combo] { return combo.Text() + " " + std::to_string(combo.SelectedIndex()); };
  ReadingPeer peer(read);
  combo.AttachPeer(&peer);
  Handled changed;
  Seen in_handler;
  changed.action = [&] { in_handler.push_back(read()); };
  combo.OnChange = changed.Handler();
  combo.ChooseIndex(1);
  ASSERT_FALSE(peer.seen.empty());
  EXPECT_EQ(peer.seen.back(), "b 1");
  EXPECT_EQ(in_handler, Seen{"b 1"});
}

TEST_F(PeerReadsTheModel, ValueAndRangeOfAScrollBar) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 0, .maximum = 10});
  ReadingPeer peer([&bar] {
    return std::to_string(bar.Value()) + " of " + std::to_string(bar.Minimum()) + "-" +
           std::to_string(bar.Maximum());
  });
  bar.AttachPeer(&peer);
  EXPECT_TRUE(bar.SetValue(9).Ok());
  bar.SetRange(0, 5);
  bar.SetRange(1, 5);
  bar.SetRange(1, 5);
  bar.SetRange(1, 4);
  EXPECT_EQ(peer.seen, (Seen{"9 of 0-10", "5 of 0-5", "5 of 1-5", "4 of 1-4"}));
}

TEST_F(PeerReadsTheModel, RangeOfASliderWithEitherEndMoved) {
  ui::Slider slider(fixture.form, {.name = "Slider"}, {.minimum = 0, .maximum = 10, .value = 5});
  ReadingPeer peer([&slider] {
    return std::to_string(slider.Value()) + " of " + std::to_string(slider.Minimum()) + "-" +
           std::to_string(slider.Maximum());
  });
  slider.AttachPeer(&peer);
  slider.SetValue(6);
  slider.SetMinimum(0);
  slider.SetMinimum(7);
  slider.SetMaximum(10);
  slider.SetMaximum(9);
  EXPECT_EQ(peer.seen, (Seen{"6 of 0-10", "7 of 7-10", "7 of 7-9"}));
}

TEST_F(PeerReadsTheModel, OpenTab) {
  constexpr ui::Design kPages[] = {{.name = "One"}, {.name = "Two"}};
  ui::TabStrip strip(fixture.form, {.name = "Tabs"}, kPages);
  ReadingPeer peer([&strip] { return std::to_string(strip.Tab()); });
  strip.AttachPeer(&peer);
  EXPECT_TRUE(strip.SetTab(1).Ok());
  EXPECT_EQ(peer.seen, Seen{"1"});
}

TEST_F(PeerReadsTheModel, StateVisibilityAndFocusOfAForm) {
  ui::Button button(fixture.form, {.name = "Button"});
  const auto read = [this, &button] {
    return std::string(fixture.form.Shown() ? "shown" : "hidden") +
           (fixture.form.State() == ui::WindowState::kMinimised ? " minimised" : "") +
           (button.HasFocus() ? " focus" : "");
  };
  ReadingPeer form_peer(read);
  ReadingPeer button_peer(read);
  fixture.form.AttachPeer(&form_peer);
  button.AttachPeer(&button_peer);
  button.SetFocus();
  fixture.form.SetState(ui::WindowState::kMinimised);
  fixture.form.Hide();
  fixture.form.Show();
  EXPECT_EQ(button_peer.seen, Seen{"shown focus"});
  EXPECT_EQ(form_peer.seen,
            (Seen{"shown minimised focus", "hidden minimised focus", "shown minimised focus"}));
}

TEST_F(PeerReadsTheModel, BoundsOfAFormAndTheBorderOfADrawing) {
  ReadingPeer form_peer(
      [this] { return std::to_string(fixture.form.Bounds().value_or(ui::WindowBounds{}).left); });
  fixture.form.AttachPeer(&form_peer);
  fixture.form.SetBounds({.left = 5, .top = 6, .width = 7, .height = 8});
  EXPECT_EQ(form_peer.seen, Seen{"5"});

  controls::Meter3 meter(fixture.form, {.name = "Meter"});
  ReadingPeer meter_peer([&meter] { return std::string(meter.Border() == 0 ? "none" : "3D"); });
  meter.AttachPeer(&meter_peer);
  EXPECT_TRUE(meter.SetBorder(0).Ok());
  EXPECT_EQ(meter_peer.seen, Seen{"none"});
}

TEST_F(PeerReadsTheModel, BeforeTheHandlerRuns) {
  RecordingPeer peer;
  std::vector<std::size_t> told;
  Handled handled;
  handled.action = [&] { told.push_back(peer.changes.size()); };
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 0, .maximum = 10});
  ui::TextBox text(fixture.form, {.name = "Text"});
  ui::ListBox list(fixture.form, {.name = "List"});
  ui::OptionButton option(fixture.form, {.name = "Option"});
  bar.OnChange = text.OnChange = list.OnClick = option.OnClick = fixture.form.OnActivate = handled.Handler();
  list.AddItem("a");
  fixture.form.Hide();
  for (ui::Control* control :
       {static_cast<ui::Control*>(&bar), static_cast<ui::Control*>(&text), static_cast<ui::Control*>(&list),
        static_cast<ui::Control*>(&option), static_cast<ui::Control*>(&fixture.form)}) {
    control->AttachPeer(&peer);
  }
  EXPECT_TRUE(bar.SetValue(1).Ok());
  text.SetText("a");
  EXPECT_TRUE(list.SetSelectedIndex(0).Ok());
  option.SetSelected(true);
  fixture.form.Show();
  EXPECT_EQ(told, (std::vector<std::size_t>{1, 2, 3, 4, 5}));
}

TEST_F(PeerReadsTheModel, TabIsOpenAndTheFocusHasLeftBeforeItsHandlerRuns) {
  constexpr ui::Design kPages[] = {{.name = "One"}, {.name = "Two"}};
  ui::TabStrip strip(fixture.form, {.name = "Tabs"}, kPages);
  ui::Button button(strip.Page(0), {.name = "Button"});
  button.SetFocus();
  Seen order;
  ReadingPeer peer([&] {
    order.emplace_back("told");
    return std::string();
  });
  strip.AttachPeer(&peer);
  Handled lost;
  lost.action = [&] { order.emplace_back("lost"); };
  button.OnLostFocus = lost.Handler();
  struct Opened {
    Seen& order;
    base::Status Run(int /*left*/) {
      order.emplace_back("opened");
      return base::kDone;
    }
  } opened{order};
  strip.OnClick = base::Callback<base::Status(int)>::To<&Opened::Run>(opened);
  EXPECT_TRUE(strip.SetTab(1).Ok());
  EXPECT_EQ(order, (Seen{"told", "lost", "opened"}));
}

TEST_F(PeerReadsTheModel, WindowIsRemovedAfterTheUnloadAndTheLastHandler) {
  struct Window final : ui::FormPeer {
    explicit Window(const ui::Form& its_form) : form(its_form) {}
    void PopUp(ui::MenuItem& /*menu*/) override {}
    void FormUnloaded() override { was_over = form.Unloaded() && form.Dispatcher().Stopped(); }
    const ui::Form& form;
    bool was_over = false;
  } window(fixture.form);
  fixture.form.AttachFormPeer(&window);
  fixture.form.Unload();
  EXPECT_TRUE(window.was_over);
}

/// Reads the values with which the system's timer would be set.
struct ReadingTimerPeer final : ui::TimerPeer {
  void TimerRestarted(ui::Timer& timer) override {
    seen.push_back(std::to_string(timer.Interval()) + (timer.Running() ? " runs" : " rests"));
  }
  Seen seen;
};

TEST_F(PeerReadsTheModel, IntervalAndStateOfATimer) {
  ui::Timer timer(fixture.events, "Timer", 1000, false);
  ReadingTimerPeer peer;
  timer.AttachPeer(&peer);
  timer.SetEnabled(true);
  EXPECT_TRUE(timer.SetInterval(2000).Ok());
  timer.SetEnabled(false);
  EXPECT_EQ(peer.seen, (Seen{"1000 rests", "1000 runs", "2000 runs", "2000 rests"}));
}

}  // namespace
}  // namespace qdix::tests
