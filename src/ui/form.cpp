#include "ui/form.h"

namespace qdix::ui {

Form::Form(EventDispatcher& events, const Design& design, FormSize smallest)
    : Container(nullptr, Kind::kForm, design), events_(events), smallest_(smallest) {
  SetVisible(false);
}

void Form::Show() {
  if (unloaded_) return;
  if (Shown()) {
    Notify(Change::kVisible);
    return;
  }
  SetVisible(true);
  events_.Run(OnActivate);
}

void Form::Hide() { SetVisible(false); }

void Form::UserChangedVisible(bool visible) {
  if (visible_ == visible || unloaded_) return;
  visible_ = visible;
  if (visible) events_.Run(OnActivate);
}

void Form::SetState(WindowState state) {
  if (state_ == state || unloaded_) return;
  state_ = state;
  Notify(Change::kWindowState);
}

bool Form::MoveFocus(Control* to) {
  if (to != nullptr && !to->Reachable()) return false;
  if (focused_ == to) {
    focus_set_by_handler_ = true;
    return true;
  }
  if (focused_ != nullptr && !LeaveFocused()) return false;
  // The handlers of the control that lost the focus may have moved the focus or made `to` unreachable.
  if (focused_ != nullptr) return focused_ == to;
  if (to == nullptr) return true;
  if (!to->Reachable()) return false;
  focused_ = to;
  to->Notify(Change::kFocus);
  events_.Run(to->OnGotFocus);
  return focused_ == to;
}

/// Asks the control with the focus to release it. The control keeps the focus if it refuses or if its handler
/// sets the focus back to it. Returns true without a further check if the handler moved the focus elsewhere.
bool Form::LeaveFocused() {
  if (moving_focus_) return false;
  Control* const left = focused_;
  moving_focus_ = true;
  focus_set_by_handler_ = false;
  const bool accepted = Validates(*left);
  const bool kept = focus_set_by_handler_;
  moving_focus_ = false;
  if (focused_ != left) return true;
  if (!accepted || kept) {
    // The window may have lost the keyboard already; give it back.
    left->Notify(Change::kFocus);
    return false;
  }
  focused_ = nullptr;
  events_.Run(left->OnLostFocus);
  return true;
}

bool Form::Validates(Control& control) {
  if (!control.OnValidate || events_.Stopped()) return true;
  const base::Result<bool> answer = control.OnValidate();
  if (answer.Ok()) return answer.Value();
  events_.Report(answer.Error());
  return true;
}

void Form::DropUnreachableFocus() {
  if (focused_ == nullptr || focused_->Reachable()) return;
  Control* const left = focused_;
  focused_ = nullptr;
  events_.Run(left->OnLostFocus);
}

void Form::PopUpMenu(MenuItem& menu) {
  if (form_peer_ != nullptr && !unloaded_) form_peer_->PopUp(menu);
}

void Form::Close() {
  if (unloading_ || (OnQueryClose && !OnQueryClose())) return;
  Unload();
}

void Form::Unload() {
  if (!unloading_) UnloadAtOnce();
}

void Form::UnloadAtOnce() {
  unloading_ = true;
  events_.Run(OnUnload);
  if (unloaded_) return;  // the session ended while the handler had a message box open
  unloaded_ = true;
  events_.Stop();
  if (form_peer_ != nullptr) form_peer_->FormUnloaded();
}

void Form::UserResized(FormSize size) {
  const Place place{0, 0, size.width, size.height};
  if (GetPlace() == place) return;
  SetPlace(place);
  events_.Run(OnResize);
}

void Form::SetBounds(const WindowBounds& bounds) {
  bounds_ = bounds;
  Notify(Change::kBounds);
}

void Form::PressEscape() { events_.Run(OnEscape); }

void Form::PointerMoved(int button, int shift, double x_twips, double y_twips) {
  events_.Run(OnMouseMove, button, shift, x_twips, y_twips);
}

}  // namespace qdix::ui
