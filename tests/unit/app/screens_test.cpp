// What every screen of the window keeps to: keys that tell its controls apart, and room for each of them.
#include <gtest/gtest.h>

#include <cctype>
#include <map>

#include "tests/support/program_rig.h"
#include "ui/access_key.h"

namespace qdix::tests {
namespace {

/// Everything on a page, at any depth, in tab order.
void Collect(const ui::Container& container, std::vector<ui::Control*>& controls) {
  for (ui::Control* child : container.Children()) {
    controls.push_back(child);
    if (child->IsContainer()) Collect(static_cast<ui::Container&>(*child), controls);
  }
}

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

bool Overlap(const ui::Place& a, const ui::Place& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

bool Encloses(const ui::Place& outer, const ui::Place& inner) {
  return inner.left >= outer.left && inner.top >= outer.top &&
         inner.left + inner.width <= outer.left + outer.width &&
         inner.top + inner.height <= outer.top + outer.height;
}

/// A drop-down list's place counts its open list; closed it is this high.
ui::Place Closed(const ui::Control& control) {
  ui::Place place = control.GetPlace();
  const bool drops = control.GetKind() == ui::Kind::kDropDownList;
  if (drops) place.height = 12;
  return place;
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

TEST_P(Screens, AccessKeysStandInTheirCaptionsAndAreDifferent) {
  std::map<int, std::string> taken;
  for (const ui::Control* control : controls) {
    if (control->AccessKey() == 0) continue;
    EXPECT_NE(ui::MarkAccessKey(control->Caption(), control->AccessKey()),
              ui::MarkAccessKey(control->Caption(), 0))
        << control->Name();
    const std::string name(control->Name());
    const auto [other, is_free] = taken.emplace(std::toupper(control->AccessKey()), name);
    EXPECT_TRUE(is_free) << name << " and " << other->second;
  }
}

TEST_P(Screens, KeyOfALabelBelongsToTheControlBehindIt) {
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (controls[i]->GetKind() != ui::Kind::kLabel || controls[i]->AccessKey() == 0) continue;
    ASSERT_LT(i + 1, controls.size());
    EXPECT_TRUE(TakesTheKeyboard(*controls[i + 1])) << controls[i]->Name();
  }
}

TEST_P(Screens, EveryControlHasRoomOfItsOwn) {
  const ui::Place page{.width = screens::kPagePlace.width, .height = screens::kPagePlace.height};
  for (std::size_t i = 0; i < controls.size(); ++i) {
    EXPECT_TRUE(Encloses(page, Closed(*controls[i]))) << controls[i]->Name();
    const ui::Container& parent = *controls[i]->Parent();
    if (parent.GetKind() == ui::Kind::kFrame) {
      EXPECT_TRUE(Encloses(parent.GetPlace(), Closed(*controls[i]))) << controls[i]->Name();
    }
    for (std::size_t other = i + 1; other < controls.size(); ++other) {
      if (controls[i]->Parent() != controls[other]->Parent()) continue;
      EXPECT_FALSE(Overlap(Closed(*controls[i]), Closed(*controls[other])))
          << controls[i]->Name() << " and " << controls[other]->Name();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Tabs, Screens, testing::Range(0, 8));

}  // namespace
}  // namespace qdix::tests
