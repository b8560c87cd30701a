// The window as drawn: every control is in position and reachable by one key.
#include <gtest/gtest.h>

#include <algorithm>

#include "config_launcher/config_screen.h"
#include "tests/support/screen_rules.h"

namespace qdix::tests {
namespace {

class ConfigWindow : public testing::Test {
 protected:
  ConfigWindow() { Collect(screen.Window, controls); }

  ui::EventDispatcher events;
  config_launcher::ConfigScreen screen{events};
  std::vector<ui::Control*> controls;
};

TEST_F(ConfigWindow, EverythingExceptOkAndCancelHasItsOwnKey) {
  ExpectDifferentAccessKeys(controls);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const ui::Control& control = *controls[i];
    const bool is_end = &control == &screen.cmdOK || &control == &screen.cmdCancel;
    if (control.GetKind() == ui::Kind::kButton) {
      EXPECT_EQ(control.AccessKey() == 0, is_end) << control.Name();
    }
  }
}

/// The access key of a label works for the next control in tab order.
TEST_F(ConfigWindow, FieldsAndListHaveTheKeyOfTheLabelBeforeThem) {
  const std::vector<std::pair<const ui::Control*, const ui::Control*>> pairs{
      {&screen.lblName, &screen.txtName},
      {&screen.lblPath, &screen.txtPath},
      {&screen.lblStartIn, &screen.txtStartIn}};
  for (const auto& [label, field] : pairs) {
    const auto place = std::find(controls.begin(), controls.end(), label);
    ASSERT_NE(place, controls.end());
    EXPECT_EQ(*std::next(place), field) << label->Name();
    EXPECT_NE(label->AccessKey(), 0) << label->Name();
  }
  EXPECT_NE(screen.lblPrograms.AccessKey(), 0);
}

/// From left to right, row by row: the Tab key never moves up, and never to the left within a row.
TEST_F(ConfigWindow, TabKeyGoesFromLeftToRightAndFromTopToBottom) {
  const ui::Control* before = nullptr;
  int steps = 0;
  for (const ui::Control* control : controls) {
    if (control->GetKind() == ui::Kind::kLabel) continue;
    if (before != nullptr) {
      const ui::Place& from = before->GetPlace();
      const ui::Place& to = control->GetPlace();
      EXPECT_TRUE(to.top > from.top || (to.top == from.top && to.left > from.left)) << control->Name();
      ++steps;
    }
    before = control;
  }
  EXPECT_EQ(steps, 13);
}

TEST_F(ConfigWindow, EverythingIsInPositionWithinTheMargins) {
  constexpr std::int16_t kMargin = 7;
  const ui::Place window = screen.Window.GetPlace();
  EXPECT_LE(window.width, 263);
  EXPECT_LE(window.height, 263);
  ExpectRoomForEach(controls, {.left = kMargin,
                               .top = kMargin,
                               .width = static_cast<std::int16_t>(window.width - 2 * kMargin),
                               .height = static_cast<std::int16_t>(window.height - 2 * kMargin)});
}

TEST_F(ConfigWindow, TitleRolesAndLengths) {
  EXPECT_EQ(screen.Window.Caption(), "Config Launcher");
  EXPECT_EQ(screen.cmdOK.Role(), ui::ButtonRole::kDefault);
  EXPECT_EQ(screen.cmdCancel.Role(), ui::ButtonRole::kCancel);
  EXPECT_EQ(screen.txtName.MaxLength(), 55);
  EXPECT_EQ(screen.txtPath.MaxLength(), 255);
  EXPECT_EQ(screen.txtStartIn.MaxLength(), 255);
}

}  // namespace
}  // namespace qdix::tests
