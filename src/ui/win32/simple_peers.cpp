#include "ui/win32/simple_peers.h"

#include "ui/access_key.h"
#include "ui/win32/focus_keeper.h"
#include "ui/win32/form_keys.h"
#include "ui/win32/peer_table.h"

namespace qdix::ui::win32 {

namespace {

std::string MarkedCaption(const Control& model) { return MarkAccessKey(model.Caption(), model.AccessKey()); }

NativeDesign ButtonDesign(const PeerContext& context, const Control& model, DWORD style) {
  return {.window_class = "BUTTON",
          .text = MarkedCaption(model),
          .style = style,
          .box = context.font.Pixels(model.GetPlace())};
}

/// A label with a tool tip must receive mouse messages.
DWORD LabelStyle(const Label& model) { return SS_LEFT | (model.ToolTip().empty() ? 0UL : SS_NOTIFY); }

/// The direction of an arrow key within a group of options; 0 for any other key.
int DirectionOf(WPARAM key) {
  if (key == VK_DOWN || key == VK_RIGHT) return 1;
  if (key == VK_UP || key == VK_LEFT) return -1;
  return 0;
}

std::vector<OptionButton*> GroupOf(const OptionButton& option) {
  std::vector<OptionButton*> group;
  for (Control* sibling : option.Parent()->Children()) {
    if (sibling->GetKind() == Kind::kOptionButton) group.push_back(static_cast<OptionButton*>(sibling));
  }
  return group;
}

}  // namespace

LabelPeer::LabelPeer(const PeerContext& context, Label& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = "STATIC",
                     // Doubles every "&" even without an access key: whatever the style, the dialog manager's
                     // search for an access key would take "& " for one on the space bar.
                     .text = MarkedCaption(model),
                     .style = LabelStyle(model),
                     .box = context.font.Pixels(model.GetPlace())}) {}

FramePeer::FramePeer(const PeerContext& context, Frame& model, HWND parent, int number)
    : NativeControl(context, model, parent, number, ButtonDesign(context, model, BS_GROUPBOX | WS_GROUP)) {
  // A group box does not paint its inside; the parent window must, so it must not clip its child windows.
  SetWindowLongA(parent, GWL_STYLE, GetWindowLongA(parent, GWL_STYLE) & ~static_cast<LONG>(WS_CLIPCHILDREN));
}

/// The windows of a frame's contents are siblings of the frame's window. Hiding that window does not hide
/// them.
void FramePeer::ControlChanged(Control& control, Change change) {
  NativeControl::ControlChanged(control, change);
  if (change != Change::kVisible) return;
  for (Control* child : static_cast<Frame&>(Model()).Children()) {
    NativeControl* const peer = Context().peers.ByModel(*child);
    if (peer != nullptr) peer->ControlChanged(*child, Change::kVisible);
  }
}

PicturePeer::PicturePeer(const PeerContext& context, Picture& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = "STATIC",
                     .style = SS_ICON | (model.ToolTip().empty() ? 0UL : SS_NOTIFY),
                     .box = context.font.Pixels(model.GetPlace())}) {
  // Windows keeps icons from resources until the program ends.
  HICON const icon = LoadIconA(context.instance, MAKEINTRESOURCEA(model.ResourceId()));
  if (icon != nullptr) Send(STM_SETICON, reinterpret_cast<WPARAM>(icon));
}

ButtonPeer::ButtonPeer(const PeerContext& context, Button& model, HWND parent, int number)
    : ButtonPeer(context, model, parent, number,
                 model.Role() == ButtonRole::kDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) {}

ButtonPeer::ButtonPeer(const PeerContext& context, Button& model, HWND parent, int number, DWORD style)
    : NativeControl(context, model, parent, number, ButtonDesign(context, model, WS_TABSTOP | style)),
      button_(model) {}

void ButtonPeer::OnCommand(UINT code) {
  if (code == BN_CLICKED && !Context().focus.TakeRefusal(*this)) button_.Press();
}

void ButtonPeer::ShowAsDefault(bool is_default) {
  Send(BM_SETSTYLE, static_cast<WPARAM>(is_default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON), TRUE);
}

/// While a button has the focus, Enter presses that button and no other.
LRESULT ButtonPeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_SETFOCUS) {
    ShowOtherDefault(false);
    ShowAsDefault(true);
  } else if (message == WM_KILLFOCUS) {
    const LRESULT result = NativeControl::HandleMessage(message, wparam, lparam);
    ShowAsDefault(button_.Role() == ButtonRole::kDefault);
    ShowOtherDefault(true);
    return result;
  }
  return NativeControl::HandleMessage(message, wparam, lparam);
}

void ButtonPeer::ShowOtherDefault(bool is_default) {
  Button* const other = Context().keys.ReachableButton(ButtonRole::kDefault);
  NativeControl* const peer =
      other == nullptr || other == &button_ ? nullptr : Context().peers.ByModel(*other);
  if (peer != nullptr) static_cast<ButtonPeer*>(peer)->ShowAsDefault(is_default);
}

CheckBoxPeer::CheckBoxPeer(const PeerContext& context, CheckBox& model, HWND parent, int number)
    : NativeControl(context, model, parent, number, ButtonDesign(context, model, WS_TABSTOP | BS_3STATE)),
      box_(model) {
  ValueChanged();
}

void CheckBoxPeer::OnCommand(UINT code) {
  if (code == BN_CLICKED && !Context().focus.TakeRefusal(*this)) box_.Press();
}

void CheckBoxPeer::ValueChanged() { Send(BM_SETCHECK, static_cast<WPARAM>(box_.Value())); }

OptionButtonPeer::OptionButtonPeer(const PeerContext& context, OptionButton& model, HWND parent, int number)
    : NativeControl(
          context, model, parent, number,
          ButtonDesign(context, model, BS_RADIOBUTTON | (GroupOf(model).front() == &model ? WS_GROUP : 0UL))),
      option_(model) {
  ValueChanged();
  RefreshTabStop();
}

void OptionButtonPeer::OnCommand(UINT code) {
  // Windows also reports a click when the button gets the focus. Moving the focus must not choose the option.
  if (code == BN_CLICKED && !taking_focus_ && !Context().focus.TakeRefusal(*this)) option_.Press();
}

LRESULT OptionButtonPeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_SETFOCUS: {
      taking_focus_ = true;
      const LRESULT result = NativeControl::HandleMessage(message, wparam, lparam);
      taking_focus_ = false;
      return result;
    }
    case WM_GETDLGCODE:
      return NativeControl::HandleMessage(message, wparam, lparam) | DLGC_WANTARROWS;
    case WM_KEYDOWN:
      if (DirectionOf(wparam) == 0) break;
      ChooseNeighbour(DirectionOf(wparam));
      return 0;
    default:
      break;
  }
  return NativeControl::HandleMessage(message, wparam, lparam);
}

void OptionButtonPeer::ChooseNeighbour(int direction) {
  const std::vector<OptionButton*> group = GroupOf(option_);
  const std::size_t count = group.size();
  const std::size_t step = direction > 0 ? 1 : count - 1;
  std::size_t index = 0;
  while (group[index] != &option_) ++index;
  for (std::size_t tried = 1; tried < count; ++tried) {
    index = (index + step) % count;
    OptionButton& neighbour = *group[index];
    if (!neighbour.Reachable()) continue;
    neighbour.SetFocus();
    if (neighbour.HasFocus()) neighbour.Press();
    return;
  }
}

void OptionButtonPeer::ValueChanged() {
  Send(BM_SETCHECK, static_cast<WPARAM>(option_.Selected() ? BST_CHECKED : BST_UNCHECKED));
  RefreshTabStopsOfGroup();
}

void OptionButtonPeer::RefreshTabStopsOfGroup() const {
  for (OptionButton* member : GroupOf(option_)) {
    NativeControl* const peer = Context().peers.ByModel(*member);
    if (peer != nullptr) static_cast<OptionButtonPeer*>(peer)->RefreshTabStop();
  }
}

void OptionButtonPeer::RefreshTabStop() {
  const std::vector<OptionButton*> group = GroupOf(option_);
  bool any_selected = false;
  for (const OptionButton* member : group) any_selected = any_selected || member->Selected();
  const bool stop = any_selected ? option_.Selected() : group.front() == &option_;
  const LONG style = GetWindowLongA(Window(), GWL_STYLE) & ~static_cast<LONG>(WS_TABSTOP);
  SetWindowLongA(Window(), GWL_STYLE, stop ? style | static_cast<LONG>(WS_TABSTOP) : style);
}

}  // namespace qdix::ui::win32
