// Rules for every window: distinct access keys for its controls, and room for each control.
#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <string>
#include <vector>

#include "ui/access_key.h"
#include "ui/control.h"

namespace qdix::tests {

/// Collects every control on a page, at any depth, in tab order.
inline void Collect(const ui::Container& container, std::vector<ui::Control*>& controls) {
  for (ui::Control* child : container.Children()) {
    controls.push_back(child);
    if (child->IsContainer()) Collect(static_cast<ui::Container&>(*child), controls);
  }
}

inline bool Overlap(const ui::Place& a, const ui::Place& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

inline bool Encloses(const ui::Place& outer, const ui::Place& inner) {
  return inner.left >= outer.left && inner.top >= outer.top &&
         inner.left + inner.width <= outer.left + outer.width &&
         inner.top + inner.height <= outer.top + outer.height;
}

/// Returns the place of the closed control: the place of a drop-down list includes its open list.
inline ui::Place Closed(const ui::Control& control) {
  ui::Place place = control.GetPlace();
  const bool drops = control.GetKind() == ui::Kind::kDropDownList;
  if (drops) place.height = 12;
  return place;
}

/// Expects that each access key occurs in its caption and that no two controls of a window or tab share one.
inline void ExpectDifferentAccessKeys(const std::vector<ui::Control*>& controls) {
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

/// Expects that each control lies inside the page (a place within itself) and inside its frame, and overlaps
/// no other.
inline void ExpectRoomForEach(const std::vector<ui::Control*>& controls, const ui::Place& page) {
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

}  // namespace qdix::tests
