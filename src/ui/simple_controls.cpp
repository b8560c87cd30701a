#include "ui/simple_controls.h"

namespace qdix::ui {

void Button::Press() {
  if (Reachable()) Events().Run(OnClick);
}

base::Status CheckBox::SetValue(int value) {
  if (value < 0 || value > 2) return base::kInvalidPropertyValue;
  if (value_ == value) return base::kDone;
  value_ = value;
  Notify(Change::kValue);
  Events().Run(OnClick);
  return base::kDone;
}

void CheckBox::SetTicked(bool ticked) { base::Ignore(SetValue(ticked ? 1 : 0)); }

void CheckBox::Press() {
  if (Reachable()) SetTicked(value_ == 0);
}

void OptionButton::SetSelected(bool selected) {
  if (selected_ == selected) return;
  if (selected) {
    for (Control* sibling : Parent()->Children()) {
      if (sibling->GetKind() == Kind::kOptionButton) static_cast<OptionButton*>(sibling)->Clear();
    }
  }
  selected_ = selected;
  Notify(Change::kValue);
  if (selected) Events().Run(OnClick);
}

void OptionButton::Clear() {
  if (!selected_) return;
  selected_ = false;
  Notify(Change::kValue);
}

void OptionButton::Press() {
  if (Reachable()) SetSelected(true);
}

}  // namespace qdix::ui
