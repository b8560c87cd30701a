#include "tests/e2e/driver/screen_map.h"

#include <algorithm>

#include "ui/control_numbers.h"
#include "ui/tab_strip.h"

namespace qdix::e2e {

namespace {

struct Collector {
  std::vector<ControlAddress>& controls;

  void Visit(ui::Control& control, int number) {
    ControlAddress address{.name = std::string(control.Name()), .number = number};
    for (const ui::Control* on = &control; on != nullptr; on = on->Parent()) {
      if (on->GetKind() == ui::Kind::kTabPage) address.tab = static_cast<const ui::TabPage*>(on)->Index();
    }
    controls.push_back(address);
  }
};

}  // namespace

ScreenMap::ScreenMap(const ui::Container& window) {
  Collector collector{controls_};
  ui::VisitControls(window, ui::ControlVisitor::To<&Collector::Visit>(collector));
}

const ControlAddress* ScreenMap::Find(const std::string& name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&name](const ControlAddress& control) { return control.name == name; });
  return found == controls_.end() ? nullptr : &*found;
}

const ControlAddress* ScreenMap::Find(int number) const {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(),
                   [number](const ControlAddress& control) { return control.number == number; });
  return found == controls_.end() ? nullptr : &*found;
}

}  // namespace qdix::e2e
