// Rules for every screen of the main window.
#include <gtest/gtest.h>

#include "tests/support/program_rig.h"
#include "tests/support/screen_rules.h"

namespace qdix::tests {
namespace {

bool TakesTheKeyboard(const ui::Control& control) {
  switch (control.GetKind()) {
    case ui::Kind::kButton:
    case ui::Kind::kCheckBox:
    case ui::Kind::kOptionButton:
    case ui::Kind::kTextBox:
    case ui::Kind::kListBox:
    case ui::Kind::kDropDownList:
    case ui::Kind::kDropDownCombo:
    case ui::Kind::kVerticalScrollBar:
    case ui::Kind::kSlider:
      return true;
    default:
      return false;
  }
}

class Screens : public testing::TestWithParam<int> {
 protected:
  Screens() {
    rig_.Create();
    Collect(rig_.program->MainWindow().SSTab1.Page(GetParam()), controls);
  }
  std::vector<ui::Control*> controls;

 private:
  ProgramRig rig_;
};

TEST_P(Screens, AccessKeysOccurInTheirCaptionsAndAreDifferent) { ExpectDifferentAccessKeys(controls); }

TEST_P(Screens, KeyOfALabelBelongsToTheControlAfterIt) {
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (controls[i]->GetKind() != ui::Kind::kLabel || controls[i]->AccessKey() == 0) continue;
    ASSERT_LT(i + 1, controls.size());
    EXPECT_TRUE(TakesTheKeyboard(*controls[i + 1])) << controls[i]->Name();
  }
}

TEST_P(Screens, EveryControlHasRoomOfItsOwn) {
  ExpectRoomForEach(controls, {.width = screens::kPagePlace.width, .height = screens::kPagePlace.height});
}

INSTANTIATE_TEST_SUITE_P(Tabs, Screens, testing::Range(0, 8));

}  // namespace
}  // namespace qdix::tests
