#include "ui/win32/form_keys.h"

#include "ui/control_numbers.h"

namespace qdix::ui::win32 {

namespace {

bool IsDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

bool FormKeys::IsTabSwitch(WPARAM key) {
  return (key == VK_TAB || key == VK_NEXT || key == VK_PRIOR) && IsDown(VK_CONTROL) && !IsDown(VK_MENU);
}

LRESULT FormKeys::DialogCode(LPARAM message) {
  const auto* const key = reinterpret_cast<const MSG*>(message);
  const bool wanted = key != nullptr && key->message == WM_KEYDOWN && IsTabSwitch(key->wParam);
  return wanted ? DLGC_WANTMESSAGE : 0;
}

void FormKeys::SwitchTab(WPARAM key) {
  TabStrip* const strip = FirstTabStrip();
  if (strip == nullptr || strip->Count() == 0) return;
  const bool backward = key == VK_PRIOR || (key == VK_TAB && IsDown(VK_SHIFT));
  const int step = backward ? strip->Count() - 1 : 1;
  strip->ChooseTab((strip->Tab() + step) % strip->Count());
}

Button* FormKeys::ReachableButton(ButtonRole role) const {
  Button* found = nullptr;
  auto compare = [role, &found](Control& control, int /*number*/) {
    if (found != nullptr || control.GetKind() != Kind::kButton || !control.Reachable()) return;
    auto& button = static_cast<Button&>(control);
    if (button.Role() == role) found = &button;
  };
  VisitControls(form_, ControlVisitor::Of(compare));
  return found;
}

TabStrip* FormKeys::FirstTabStrip() const {
  for (Control* child : form_.Children()) {
    if (child->GetKind() == Kind::kTabStrip) return static_cast<TabStrip*>(child);
  }
  return nullptr;
}

}  // namespace qdix::ui::win32
