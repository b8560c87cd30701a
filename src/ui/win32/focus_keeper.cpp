#include "ui/win32/focus_keeper.h"

#include "ui/win32/peer_table.h"

namespace qdix::ui::win32 {

namespace {

/// True if the native window is of class BUTTON and can be pressed.
bool IsButton(const Control& model) {
  const Kind kind = model.GetKind();
  return kind == Kind::kButton || kind == Kind::kCheckBox || kind == Kind::kOptionButton;
}

}  // namespace

void FocusKeeper::Arrived(NativeControl& peer) {
  waiting_ = nullptr;
  // A validation may open and close a message box, which moves the native focus. FollowModel sets it right at
  // the end.
  if (moving_ || form_.Focused() == &peer.Model()) return;
  moving_ = true;
  const bool taken = form_.MoveFocus(&peer.Model());
  moving_ = false;
  if (!taken) Refuse(peer);
  FollowModel();
}

void FocusKeeper::Refuse(NativeControl& peer) {
  refused_ = &peer;
  // If the same click pressed a button down, its release must not click it.
  if (GetCapture() == peer.Window()) ReleaseCapture();
  PostMessageA(main_, kRefusalSettledMessage, 0, 0);
}

bool FocusKeeper::TakeRefusal(const NativeControl& peer) {
  if (refused_ != &peer) return false;
  refused_ = nullptr;
  return true;
}

void FocusKeeper::OnRefusalSettled() {
  if (refused_ == nullptr) return;
  // A button draws itself pressed after it got the focus. It no longer has the capture, so nothing else would
  // raise it again. Only for buttons: in other window classes the same message number means something else.
  if (IsButton(refused_->Model())) SendMessageA(refused_->Window(), BM_SETSTATE, FALSE, 0);
  refused_ = nullptr;
}

void FocusKeeper::FollowModel() {
  const Control* const focused = form_.Focused();
  if (moving_ || focused == nullptr) return;
  NativeControl* const peer = peers_.ByModel(*focused);
  if (peer != nullptr) Give(*peer);
}

/// Does nothing in an inactive window; ArrivedAtMain sets the focus when the window is activated.
void FocusKeeper::Give(NativeControl& peer) const {
  if (GetActiveWindow() == main_ && peer.Usable() && !peer.OwnsNativeFocus()) SetFocus(peer.Window());
}

void FocusKeeper::Leaving(NativeControl& peer) {
  waiting_ = &peer;
  parking_ = true;
  SetFocus(main_);
  parking_ = false;
}

void FocusKeeper::Returned(NativeControl& peer) {
  if (waiting_ != &peer || !peer.Usable()) return;
  waiting_ = nullptr;
  if (GetFocus() == main_) Give(peer);
}

void FocusKeeper::ArrivedAtMain() {
  if (parking_ || (waiting_ != nullptr && !waiting_->Usable())) return;
  waiting_ = nullptr;
  const Control* const focused = form_.Focused();
  NativeControl* const kept = focused == nullptr ? nullptr : peers_.ByModel(*focused);
  if (kept != nullptr && kept->Usable()) {
    SetFocus(kept->Window());
    return;
  }
  HWND const first = GetNextDlgTabItem(main_, nullptr, FALSE);
  if (first != nullptr && first != main_) SetFocus(first);
}

}  // namespace qdix::ui::win32
