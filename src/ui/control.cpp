#include "ui/control.h"

#include "ui/form.h"
#include "ui/tab_strip.h"

namespace qdix::ui {

namespace {

Colour DefaultBackColour(Kind kind) {
  switch (kind) {
    case Kind::kTextBox:
    case Kind::kListBox:
    case Kind::kDropDownList:
    case Kind::kDropDownCombo:
      return kWindowBackground;
    default:
      return kButtonFace;
  }
}

}  // namespace

Control::Control(Container* parent, Kind kind, const Design& design)
    : parent_(parent),
      design_(design),
      caption_(design.caption),
      back_colour_(DefaultBackColour(kind)),
      kind_(kind),
      enabled_(design.enabled),
      visible_(design.visible) {
  if (parent_ != nullptr) parent_->children_.push_back(this);
}

Form& Control::GetForm() const {
  const Control* top = this;
  while (top->parent_ != nullptr) top = top->parent_;
  // A form is at the top of every tree of controls: only a form has no parent.
  return const_cast<Form&>(static_cast<const Form&>(*top));
}

EventDispatcher& Control::Events() const { return GetForm().Dispatcher(); }

void Control::Notify(Change change) {
  if (peer_ != nullptr) peer_->ControlChanged(*this, change);
}

void Control::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Notify(Change::kCaption);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  NotifyEnabled();
}

void Control::NotifyEnabled() { Notify(Change::kEnabled); }

/// Controls in a container work only while the container does, so their windows change with it.
void Container::NotifyEnabled() {
  Control::NotifyEnabled();
  for (Control* child : children_) child->NotifyEnabled();
}

void Control::SetPlace(const Place& place) {
  if (design_.place == place) return;
  design_.place = place;
  Notify(Change::kPlace);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Notify(Change::kVisible);
}

void Control::SetBackColour(Colour colour) {
  if (back_colour_ == colour) return;
  back_colour_ = colour;
  Notify(Change::kColour);
}

bool Control::EffectivelyEnabled() const {
  for (const Control* control = this; control != nullptr; control = control->parent_) {
    if (!control->enabled_) return false;
  }
  return true;
}

bool Control::Reachable() const {
  const Form& form = GetForm();
  if (form.Unloaded() || form.State() == WindowState::kMinimised) return false;
  for (const Control* control = this; control != nullptr; control = control->parent_) {
    if (!control->enabled_ || !control->visible_) return false;
    if (control->kind_ == Kind::kTabPage && !static_cast<const TabPage*>(control)->Open()) return false;
  }
  return true;
}

void Control::SetFocus() { GetForm().MoveFocus(this); }

bool Control::HasFocus() const { return GetForm().Focused() == this; }

Control* Container::Find(std::string_view name) {
  for (Control* child : children_) {
    if (child->Name() == name) return child;
    if (!child->IsContainer()) continue;
    if (Control* found = static_cast<Container*>(child)->Find(name)) return found;
  }
  return nullptr;
}

}  // namespace qdix::ui
