// Scroll bar, slider, tab strip, menus.
#include <gtest/gtest.h>

#include <array>

#include "tests/support/form_fixture.h"

namespace qdix::tests {
namespace {

class Ranges : public testing::Test {
 protected:
  FormFixture fixture;
  Handled changed;
};

TEST_F(Ranges, ScrollBarStartsAtItsLowestValueEvenIfInverted) {
  EXPECT_EQ(ui::VerticalScrollBar(fixture.form, {.name = "A"}, {.minimum = 3, .maximum = 9}).Value(), 3);
  EXPECT_EQ(ui::VerticalScrollBar(fixture.form, {.name = "B"}, {.minimum = 20, .maximum = 1}).Value(), 1);
}

TEST_F(Ranges, ScrollBarFiresWhenItsValueDiffersAndRefusesValuesOutside) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 20, .maximum = 1});
  bar.OnChange = changed.Handler();
  EXPECT_TRUE(bar.SetValue(20).Ok());
  EXPECT_TRUE(bar.SetValue(20).Ok());
  EXPECT_EQ(changed.count, 1);
  EXPECT_EQ(bar.SetValue(21).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(bar.SetValue(0).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(bar.Value(), 20);
  EXPECT_EQ(changed.count, 1);
}

TEST_F(Ranges, NarrowerRangeMovesTheValueWithoutFiring) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 32, .maximum = 1});
  EXPECT_TRUE(bar.SetValue(30).Ok());
  bar.OnChange = changed.Handler();
  bar.SetRange(16, 1);
  EXPECT_EQ(bar.Value(), 16);
  EXPECT_EQ(changed.count, 0);
  bar.SetRange(40, 25);
  EXPECT_EQ(bar.Minimum(), 40);
  EXPECT_EQ(bar.Maximum(), 25);
  EXPECT_EQ(bar.Value(), 25);
  EXPECT_EQ(changed.count, 0);
}

TEST_F(Ranges, UserStepsPagesAndDragsInsideTheRange) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"},
                            {.minimum = 0, .maximum = 100, .small_change = 5, .large_change = 10});
  bar.OnChange = changed.Handler();
  bar.Step(1);
  bar.Page(2);
  EXPECT_EQ(bar.Value(), 25);
  bar.Step(-100);
  EXPECT_EQ(bar.Value(), 0);
  bar.Drag(1000);
  EXPECT_EQ(bar.Value(), 100);
  bar.Drag(100);
  EXPECT_EQ(changed.count, 4);
}

TEST_F(Ranges, UpArrowOfAnInvertedBarIncreases) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"},
                            {.minimum = 32750, .maximum = 0, .small_change = 5});
  bar.Step(-1);
  EXPECT_EQ(bar.Value(), 5);
  bar.Step(1);
  EXPECT_EQ(bar.Value(), 0);
}

TEST_F(Ranges, NearestTakesAnyDouble) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 1, .maximum = 240});
  bar.SetNearest(1e300);
  EXPECT_EQ(bar.Value(), 240);
  bar.SetNearest(-1e300);
  EXPECT_EQ(bar.Value(), 1);
  bar.SetNearest(2.5);
  EXPECT_EQ(bar.Value(), 2);
}

struct Moves {
  std::vector<std::int32_t> values;
  base::Status Moved(std::int32_t value) {
    values.push_back(value);
    return base::kDone;
  }
};

TEST_F(Ranges, SliderIsClampedAndFiresForTheUsersMovesOnly) {
  ui::Slider slider(fixture.form, {.name = "Slider"}, {.minimum = 512, .maximum = 4096, .value = 512});
  Moves moves;
  slider.OnMove = base::Callback<base::Status(std::int32_t)>::To<&Moves::Moved>(moves);
  slider.SetValue(9999);
  EXPECT_EQ(slider.Value(), 4096);
  slider.SetNearest(-1e300);
  EXPECT_EQ(slider.Value(), 512);
  EXPECT_TRUE(moves.values.empty());
  slider.Drag(2048);
  slider.Drag(2048);
  slider.Drag(5000);
  EXPECT_EQ(moves.values, (std::vector<std::int32_t>{2048, 4096}));
  slider.SetMaximum(1024);
  EXPECT_EQ(slider.Value(), 1024);
  EXPECT_EQ(moves.values.size(), 2U);
}

TEST_F(Ranges, OnlyTheUserMovesASliderOfStepsToTheNearestStep) {
  ui::Slider slider(fixture.form, {.name = "Slider"},
                    {.minimum = 512, .maximum = 4096, .value = 700, .step = 512});
  EXPECT_EQ(slider.Value(), 700);
  slider.SetValue(900);
  EXPECT_EQ(slider.Value(), 900);
  slider.Drag(1300);
  EXPECT_EQ(slider.Value(), 1536);
  slider.Drag(767);
  EXPECT_EQ(slider.Value(), 512);
  slider.Drag(0);
  EXPECT_EQ(slider.Value(), 512);
  slider.Drag(100000);
  EXPECT_EQ(slider.Value(), 4096);
}

TEST_F(Ranges, InitialValueOfASliderIsInsideItsRange) {
  EXPECT_EQ(ui::Slider(fixture.form, {.name = "A"}, {.minimum = 512, .maximum = 4096}).Value(), 512);
  EXPECT_EQ(ui::Slider(fixture.form, {.name = "B"}, {.minimum = 1, .maximum = 5, .value = 9}).Value(), 5);
}

TEST_F(Ranges, NewRangeOfASliderMovesTheValueToTheNearestEnd) {
  ui::Slider slider(fixture.form, {.name = "Slider"}, {.minimum = 0, .maximum = 100, .value = 50});
  slider.SetMinimum(60);
  EXPECT_EQ(slider.Value(), 60);
  slider.SetMaximum(30);
  EXPECT_EQ(slider.Value(), 60) << "with a minimum above the maximum, the minimum is the only value";
  slider.SetMinimum(10);
  EXPECT_EQ(slider.Value(), 30);
}

/// Records the value that a peer would find at each change.
class ValueReader final : public ui::ControlPeer {
 public:
  void ControlChanged(ui::Control& control, ui::Change change) override {
    changes.push_back(change);
    values.push_back(static_cast<ui::Slider&>(control).Value());
  }
  std::vector<ui::Change> changes;
  std::vector<std::int32_t> values;
};

TEST_F(Ranges, PeerOfASliderFindsTheValueInsideTheNewRange) {
  ui::Slider slider(fixture.form, {.name = "Slider"}, {.minimum = 0, .maximum = 100, .value = 50});
  ValueReader reader;
  slider.AttachPeer(&reader);
  slider.SetMaximum(40);
  slider.SetMaximum(40);
  slider.SetValue(7);
  slider.SetValue(7);
  EXPECT_EQ(reader.changes, (std::vector<ui::Change>{ui::Change::kRange, ui::Change::kValue}));
  EXPECT_EQ(reader.values, (std::vector<std::int32_t>{40, 7}));
}

TEST_F(Ranges, PeerOfAScrollBarIsNotifiedOnlyOfANewRange) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 1, .maximum = 20});
  RecordingPeer peer;
  bar.AttachPeer(&peer);
  bar.SetRange(1, 20);
  bar.SetRange(1, 30);
  bar.SetRange(2, 30);
  EXPECT_TRUE(bar.SetValue(3).Ok());
  EXPECT_EQ(peer.changes,
            (std::vector<ui::Change>{ui::Change::kRange, ui::Change::kRange, ui::Change::kValue}));
}

TEST_F(Ranges, UnreachableBarAndSliderDoNotMove) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"}, {.minimum = 0, .maximum = 100});
  ui::Slider slider(fixture.form, {.name = "Slider"}, {});
  fixture.form.Hide();
  bar.Step(1);
  bar.Page(1);
  bar.Drag(50);
  slider.Drag(5);
  EXPECT_EQ(bar.Value(), 0);
  EXPECT_EQ(slider.Value(), 0);
}

TEST_F(Ranges, AnyNumberOfStepsAndPagesStopsAtTheEnds) {
  constexpr std::int32_t kMaxUnits = 0x7FFFFFFF;
  ui::VerticalScrollBar bar(
      fixture.form, {.name = "Bar"},
      {.minimum = -kMaxUnits, .maximum = kMaxUnits, .small_change = kMaxUnits, .large_change = kMaxUnits});
  bar.Page(kMaxUnits);
  EXPECT_EQ(bar.Value(), kMaxUnits);
  bar.Step(-kMaxUnits);
  EXPECT_EQ(bar.Value(), -kMaxUnits);
}

TEST_F(Ranges, PageTowardTheTopOfAnInvertedBarIncreases) {
  ui::VerticalScrollBar bar(fixture.form, {.name = "Bar"},
                            {.minimum = 100, .maximum = 0, .large_change = 30});
  bar.Page(-1);
  EXPECT_EQ(bar.Value(), 30);
}

constexpr std::array<ui::Design, 3> kPages{{{.name = "One"}, {.name = "Two"}, {.name = "Three"}}};

class Tabs : public testing::Test {
 protected:
  Tabs() { strip.OnClick = base::Callback<base::Status(int)>::To<&Tabs::Clicked>(*this); }

 public:
  base::Status Clicked(int tab_left) {
    left.push_back(tab_left);
    return base::kDone;
  }
  base::Result<bool> Refuse() { return false; }

 protected:
  FormFixture fixture;
  ui::TabStrip strip{fixture.form, {.name = "Strip"}, kPages};
  std::vector<int> left;
};

TEST_F(Tabs, ClickReportsThePreviousTab) {
  EXPECT_TRUE(strip.SetTab(2).Ok());
  EXPECT_TRUE(strip.SetTab(2).Ok());
  strip.ChooseTab(1);
  EXPECT_EQ(left, (std::vector<int>{0, 2}));
  EXPECT_TRUE(strip.Page(1).Open());
}

TEST_F(Tabs, PageThatDoesNotExistIsRefused) {
  EXPECT_EQ(strip.SetTab(3).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(strip.SetTab(-1).Error(), base::kInvalidPropertyValue);
  EXPECT_EQ(strip.Tab(), 0);
  EXPECT_TRUE(left.empty());
}

TEST_F(Tabs, ControlsOfAClosedPageAreUnreachable) {
  ui::Button button(strip.Page(1), {.name = "Button"});
  EXPECT_FALSE(button.Reachable());
  strip.ChooseTab(1);
  EXPECT_TRUE(button.Reachable());
}

TEST_F(Tabs, RefusingControlKeepsItsPageOpenAndTheFocus) {
  ui::TextBox box(strip.Page(0), {.name = "Text"});
  box.OnValidate = base::Callback<base::Result<bool>()>::To<&Tabs::Refuse>(*this);
  box.SetFocus();
  strip.ChooseTab(1);
  EXPECT_EQ(strip.Tab(), 0);
  EXPECT_TRUE(box.HasFocus());
  EXPECT_TRUE(left.empty());
}

TEST_F(Tabs, TabOpenedByCodeTakesTheFocusFromTheOldPageWithoutAsking) {
  ui::TextBox box(strip.Page(0), {.name = "Text"});
  box.OnValidate = base::Callback<base::Result<bool>()>::To<&Tabs::Refuse>(*this);
  Handled lost;
  box.OnLostFocus = lost.Handler();
  box.SetFocus();
  EXPECT_TRUE(strip.SetTab(1).Ok());
  EXPECT_EQ(fixture.form.Focused(), nullptr);
  EXPECT_EQ(lost.count, 1);
}

class Menus : public testing::Test {
 protected:
  FormFixture fixture;
  ui::MenuItem menu{fixture.events, "menu", "Menu"};
  ui::MenuItem entry{menu, "entry", "Entry & more"};
  ui::MenuItem bar{menu, "bar", ui::MenuItem::kSeparatorCaption};
  ui::MenuItem sub{menu, "sub", "Programs"};
  ui::MenuItem first{sub, "first", "First"};
  ui::MenuItem second{sub, "second", "Second"};
  Handled clicked;
};

TEST_F(Menus, OnlyChoosingRunsAnEntry) {
  for (ui::MenuItem* item : {&entry, &bar, &sub, &first}) item->OnClick = clicked.Handler();
  entry.Choose();
  first.Choose();
  EXPECT_EQ(clicked.count, 2);
  bar.Choose();
  sub.Choose();
  EXPECT_EQ(clicked.count, 2);
}

TEST_F(Menus, DisabledEntriesAndThoseBelowADisabledMenuDoNothing) {
  first.OnClick = clicked.Handler();
  first.SetEnabled(false);
  first.Choose();
  first.SetEnabled(true);
  sub.SetEnabled(false);
  first.Choose();
  EXPECT_EQ(clicked.count, 0);
}

TEST_F(Menus, HiddenEntriesAndThoseBelowAHiddenMenuDoNothing) {
  first.OnClick = clicked.Handler();
  EXPECT_TRUE(first.SetVisible(false).Ok());
  first.Choose();
  EXPECT_TRUE(first.SetVisible(true).Ok());
  EXPECT_TRUE(sub.SetVisible(false).Ok());
  first.Choose();
  EXPECT_EQ(clicked.count, 0);
}

TEST_F(Menus, HiddenEntryCanBeHiddenAgain) {
  EXPECT_TRUE(first.SetVisible(false).Ok());
  EXPECT_TRUE(first.SetVisible(false).Ok());
  EXPECT_TRUE(second.Visible());
}

TEST_F(Menus, RootMenuCanBeHidden) {
  EXPECT_TRUE(menu.SetVisible(false).Ok());
  EXPECT_FALSE(menu.Visible());
}

TEST_F(Menus, EntriesAreInOrderOfCreation) {
  EXPECT_EQ(menu.Children(), (std::vector<ui::MenuItem*>{&entry, &bar, &sub}));
}

TEST_F(Menus, LastVisibleEntryOfASubmenuCannotBeHidden) {
  EXPECT_TRUE(first.SetVisible(false).Ok());
  EXPECT_EQ(second.SetVisible(false).Error(), base::kSetNotPermitted);
  EXPECT_TRUE(second.Visible());
  EXPECT_TRUE(first.SetVisible(true).Ok());
  EXPECT_TRUE(second.SetVisible(false).Ok());
}

}  // namespace
}  // namespace qdix::tests
