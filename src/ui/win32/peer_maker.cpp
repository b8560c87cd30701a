#include "ui/win32/peer_maker.h"

#include "ui/control_numbers.h"
#include "ui/win32/peer_table.h"

namespace qdix::ui::win32 {

namespace {

/// Returns the page that a control is on, or null.
const TabPage* PageOf(const Control& control) {
  for (const Control* above = control.Parent(); above != nullptr; above = above->Parent()) {
    if (above->GetKind() == Kind::kTabPage) return static_cast<const TabPage*>(above);
  }
  return nullptr;
}

bool HoldsDrawing(const Container& container) {
  for (const Control* child : container.Children()) {
    if (child->GetKind() == Kind::kDrawing) return true;
    if (child->IsContainer() && HoldsDrawing(static_cast<const Container&>(*child))) return true;
  }
  return false;
}

}  // namespace

void PeerMaker::MakeDue() const {
  // The page on which the latest window was made, or null.
  const TabPage* made_on = nullptr;
  auto make_missing = [this, &made_on](Control& control, int number) {
    const NativeControl* const peer = context_.peers.ByNumber(number);
    if (peer == nullptr) {
      if (IsDue(control) && Make(control, number)) made_on = PageOf(control);
    } else if (made_on != nullptr && PageOf(control) == made_on) {
      // A new window is the last on its page. Move the windows from an earlier attempt behind it: the Tab key
      // follows this order, which must match the order on the screen.
      SetWindowPos(peer->Window(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
  };
  VisitControls(form_, ControlVisitor::Of(make_missing));
}

bool PeerMaker::Complete() const {
  bool is_complete = true;
  auto look = [this, &is_complete](const Control& control, int number) {
    if (context_.peers.ByNumber(number) == nullptr && IsDue(control)) is_complete = false;
  };
  VisitControls(form_, ControlVisitor::Of(look));
  return is_complete;
}

/// Also checks the native window, because another program can show it without the form's knowledge.
bool PeerMaker::IsDue(const Control& control) const {
  const TabPage* const page = PageOf(control);
  if (page == nullptr) return true;
  if (page->Open() && (form_.Shown() || IsWindowVisible(main_) != 0)) return true;
  return HoldsDrawing(*page);
}

bool PeerMaker::Make(Control& control, int number) const {
  std::unique_ptr<NativeControl> peer = make_peer_(context_, control, ParentWindowOf(control), number);
  if (peer == nullptr || peer->Window() == nullptr) return false;
  context_.peers.Put(number, std::move(peer));
  return true;
}

HWND PeerMaker::ParentWindowOf(const Control& control) const {
  const TabPage* const page = PageOf(control);
  const NativeControl* const peer = page == nullptr ? nullptr : context_.peers.ByModel(*page);
  return peer == nullptr ? main_ : peer->Window();
}

}  // namespace qdix::ui::win32
