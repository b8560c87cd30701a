#include "ui/menu.h"

#include <algorithm>

namespace qdix::ui {

MenuItem::MenuItem(EventDispatcher& events, ControlName name, std::string_view caption)
    : name_(name), events_(events), parent_(nullptr), caption_(caption) {}

MenuItem::MenuItem(MenuItem& parent, ControlName name, std::string_view caption)
    : name_(name), events_(parent.events_), parent_(&parent), caption_(caption) {
  parent.children_.push_back(this);
}

base::Status MenuItem::SetVisible(bool visible) {
  if (!visible && visible_ && parent_ != nullptr) {
    const auto shown = std::count_if(parent_->children_.begin(), parent_->children_.end(),
                                     [](const MenuItem* item) { return item->visible_; });
    if (shown == 1) return base::kSetNotPermitted;
  }
  visible_ = visible;
  return base::kDone;
}

bool MenuItem::Reachable() const {
  for (const MenuItem* item = this; item != nullptr; item = item->parent_) {
    if (!item->enabled_ || !item->visible_) return false;
  }
  return true;
}

void MenuItem::Choose() {
  if (IsSeparator() || !children_.empty() || !Reachable()) return;
  events_.Run(OnClick);
}

MenuItemArray::MenuItemArray(MenuItem& parent, ControlName name, int count) {
  for (int made = 0; made < count; ++made) items_.push_back(std::make_unique<MenuItem>(parent, name, ""));
}

}  // namespace qdix::ui
