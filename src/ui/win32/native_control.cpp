#include "ui/win32/native_control.h"

#include "ui/access_key.h"
#include "ui/tab_strip.h"
#include "ui/win32/focus_keeper.h"
#include "ui/win32/form_keys.h"
#include "ui/win32/tool_tips.h"

namespace qdix::ui::win32 {

namespace {

/// A tab page has a window of its own, which hides the controls on it. The controls in a frame are not
/// children of the frame's window and must be hidden one by one.
bool ShouldShow(const Control& model) {
  if (model.GetKind() == Kind::kTabPage && !static_cast<const TabPage&>(model).Open()) return false;
  if (!model.Visible()) return false;
  for (const Control* above = model.Parent(); above != nullptr; above = above->Parent()) {
    if (above->GetKind() == Kind::kTabPage || above->GetKind() == Kind::kForm) return true;
    if (!above->Visible()) return false;
  }
  return true;
}

/// Creates the window with its visible and enabled state: changing it later costs a message each.
HWND MakeWindow(const PeerContext& context, const Control& model, HWND parent, int number,
                const NativeDesign& design) {
  const DWORD state =
      (ShouldShow(model) ? WS_VISIBLE : 0UL) | (model.EffectivelyEnabled() ? 0UL : WS_DISABLED);
  return CreateWindowExA(design.extended_style, design.window_class, design.text.c_str(),
                         design.style | state | WS_CHILD, design.box.left, design.box.top, design.box.width,
                         design.box.height, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(number)),
                         context.instance, nullptr);
}

}  // namespace

NativeControl::NativeControl(const PeerContext& context, Control& model, HWND parent, int number,
                             const NativeDesign& design)
    : context_(context),
      model_(model),
      window_(MakeWindow(context, model, parent, number, design)),
      hook_(window_, *this) {
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(context_.font.Get()), FALSE);
  context_.tips.Add(window_, model_.ToolTip());
  model_.AttachPeer(this);
}

NativeControl::~NativeControl() { model_.AttachPeer(nullptr); }

LRESULT NativeControl::Send(UINT message, WPARAM wparam, LPARAM lparam) const {
  return SendMessageA(window_, message, wparam, lparam);
}

LRESULT NativeControl::Default(UINT message, WPARAM wparam, LPARAM lparam) {
  return hook_.Default(message, wparam, lparam);
}

bool NativeControl::OwnsNativeFocus() const {
  HWND const focus = GetFocus();
  return focus != nullptr && (focus == window_ || IsChild(window_, focus) != 0);
}

bool NativeControl::Usable() const { return IsWindowEnabled(window_) != 0 && IsWindowVisible(window_) != 0; }

LRESULT NativeControl::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_SETFOCUS: {
      const LRESULT result = Default(message, wparam, lparam);
      if (TakesKeyboard()) context_.focus.Arrived(*this);
      return result;
    }
    case WM_GETDLGCODE:
      return Default(message, wparam, lparam) | context_.keys.DialogCode(lparam);
    case WM_KEYDOWN:
      if (!FormKeys::IsTabSwitch(wparam)) break;
      context_.keys.SwitchTab(wparam);
      return 0;
    default:
      break;
  }
  return Default(message, wparam, lparam);
}

HBRUSH NativeControl::Paint(UINT /*message*/, HDC device) {
  SetBkColor(device, ResolveColour(model_.BackColour()));
  SetTextColor(device, GetSysColor(COLOR_WINDOWTEXT));
  return background_.For(model_.BackColour());
}

void NativeControl::RefreshVisible() {
  const bool show = ShouldShow(model_);
  if (!show && OwnsNativeFocus()) context_.focus.Leaving(*this);
  ShowWindow(window_, show ? SW_SHOWNA : SW_HIDE);
  if (show) context_.focus.Returned(*this);
}

void NativeControl::RefreshEnabled() {
  const bool enable = model_.EffectivelyEnabled();
  if (!enable && OwnsNativeFocus()) context_.focus.Leaving(*this);
  EnableWindow(window_, enable ? TRUE : FALSE);
  if (enable) context_.focus.Returned(*this);
}

std::string NativeControl::NativeCaption() const {
  return MarkAccessKey(model_.Caption(), model_.AccessKey());
}

void NativeControl::CaptionChanged() { SetWindowTextA(window_, NativeCaption().c_str()); }

void NativeControl::PlaceChanged() {
  const PixelBox box = context_.font.Pixels(model_.GetPlace());
  MoveWindow(window_, box.left, box.top, box.width, box.height, TRUE);
}

void NativeControl::FocusChanged() { context_.focus.FollowModel(); }

void NativeControl::ControlChanged(Control& /*control*/, Change change) {
  switch (change) {
    case Change::kCaption:
      return CaptionChanged();
    case Change::kEnabled:
      return RefreshEnabled();
    case Change::kVisible:
      return RefreshVisible();
    case Change::kValue:
      return ValueChanged();
    case Change::kItems:
      return ItemsChanged();
    case Change::kRange:
      return RangeChanged();
    case Change::kColour:
      InvalidateRect(window_, nullptr, TRUE);
      return;
    case Change::kFocus:
      return FocusChanged();
    case Change::kTextSelection:
      return TextSelectionChanged();
    case Change::kRepaint:
      return PixelsChanged();
    case Change::kBorder:
      return BorderChanged();
    case Change::kPlace:
      return PlaceChanged();
    case Change::kWindowState:
    case Change::kBounds:
      return;
  }
}

}  // namespace qdix::ui::win32
