// The window as drawn, in its initial size and in others.
#include <gtest/gtest.h>

#include "tests/support/screen_rules.h"
#include "tests/unit/help_viewer/help_rig.h"

namespace qdix::tests {
namespace {

constexpr ui::FormSize kFirstSize{396, 250};

class HelpWindow : public testing::Test {
 protected:
  HelpWindow() {
    rig.Start("4");
    Collect(rig.form->Form(), controls);
  }

  /// Only one side of the window is visible at a time: the contents, or the controls that find a word.
  void ExpectRoomOnEachSide() {
    constexpr std::int16_t kMargin = 7;
    const ui::Place window = rig.form->Form().GetPlace();
    const ui::Place inner{kMargin, kMargin, static_cast<std::int16_t>(window.width - 2 * kMargin),
                          static_cast<std::int16_t>(window.height - 2 * kMargin)};
    for (ui::Button* const side : {&rig.Screen().cmdContents, &rig.Screen().cmdFind}) {
      side->Press();
      std::vector<ui::Control*> seen;
      std::copy_if(controls.begin(), controls.end(), std::back_inserter(seen),
                   [](const ui::Control* control) { return control->Visible(); });
      ExpectRoomForEach(seen, inner);
    }
  }

  HelpRig rig;
  std::vector<ui::Control*> controls;
};

TEST_F(HelpWindow, EveryButtonHasItsOwnKey) {
  ExpectDifferentAccessKeys(controls);
  for (const ui::Control* control : controls) {
    if (control->GetKind() == ui::Kind::kButton) {
      EXPECT_NE(control->AccessKey(), 0) << control->Name();
    }
  }
}

TEST_F(HelpWindow, FieldAndListOfTopicsHaveTheKeyOfTheLabelBeforeThem) {
  for (const auto& [label, field] :
       {std::pair<ui::Control*, ui::Control*>{&rig.Screen().lblWord, &rig.Screen().txtWord},
        {&rig.Screen().lblFound, &rig.Screen().lstFound}}) {
    const auto place = std::find(controls.begin(), controls.end(), label);
    ASSERT_NE(place, controls.end());
    EXPECT_EQ(*std::next(place), field);
    EXPECT_NE(label->AccessKey(), 0);
  }
}

TEST_F(HelpWindow, EverythingHasRoomInEverySize) {
  const ui::FormSize smallest = rig.form->Form().Smallest();
  for (const ui::FormSize size : {kFirstSize, smallest, ui::FormSize{1000, 700}, ui::FormSize{300, 600}}) {
    rig.form->Form().UserResized(size);
    ExpectRoomOnEachSide();
    EXPECT_GE(rig.Pane().GetPlace().width, 120) << size.width;
    EXPECT_GE(rig.Pane().GetPlace().height, 80) << size.width;
  }
}

TEST_F(HelpWindow, BothPanesFollowTheWindow) {
  const ui::Place list = rig.Screen().lstContents.GetPlace();
  const ui::Place pane = rig.Pane().GetPlace();
  rig.form->Form().UserResized({500, 300});
  EXPECT_EQ(rig.Screen().lstContents.GetPlace().height, list.height + 50);
  EXPECT_GT(rig.Screen().lstContents.GetPlace().width, list.width);
  EXPECT_EQ(rig.Pane().GetPlace().height, pane.height + 50);
  EXPECT_GT(rig.Pane().GetPlace().width, pane.width);
}

/// While the system arranges a window, it can be smaller than the minimum that a user can set.
TEST_F(HelpWindow, NoSizeMakesAPlaceNegative) {
  for (const ui::FormSize size : {ui::FormSize{0, 0}, ui::FormSize{1, 1}, ui::FormSize{100, 20}}) {
    rig.form->Form().UserResized(size);
    for (const ui::Control* control : controls) {
      EXPECT_GT(control->GetPlace().width, 0) << control->Name();
      EXPECT_GT(control->GetPlace().height, 0) << control->Name();
    }
  }
}

TEST_F(HelpWindow, InitialSizeFitsOn640By480) {
  // A dialog unit is 1.5 pixels wide and 13/8 pixels high at 96 dots per inch; frame, caption and taskbar
  // take the rest.
  const ui::Place window = rig.form->Form().GetPlace();
  EXPECT_EQ(window.width, kFirstSize.width);
  EXPECT_LE(window.width * 3 / 2 + 8, 640);
  EXPECT_LE(window.height * 13 / 8 + 27, 480 - 28);
}

}  // namespace
}  // namespace qdix::tests
