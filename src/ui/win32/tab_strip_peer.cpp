#include "ui/win32/tab_strip_peer.h"

#include <commctrl.h>

#include "ui/win32/peer_maker.h"
#include "ui/win32/peer_table.h"
#include "ui/win32/reflection.h"
#include "ui/win32/window_class.h"

namespace qdix::ui::win32 {

namespace {

/// The window of a strip is made before the windows of its pages.
PixelBox AreaOf(const PeerContext& context, const TabPage& page) {
  const NativeControl* const strip = context.peers.ByModel(*page.Parent());
  return strip == nullptr ? context.font.Pixels(page.GetPlace())
                          : static_cast<const TabStripPeer*>(strip)->DisplayArea();
}

}  // namespace

TabStripPeer::TabStripPeer(const PeerContext& context, TabStrip& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = WC_TABCONTROLA,
                     .style = WS_TABSTOP | WS_CLIPSIBLINGS | TCS_MULTILINE,
                     .box = context.font.Pixels(model.GetPlace())}),
      strip_(model) {
  for (int index = 0; index < strip_.Count(); ++index) {
    std::string caption = strip_.Page(index).Caption();
    TCITEMA item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Send(TCM_INSERTITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
  }
  Send(TCM_SETCURSEL, static_cast<WPARAM>(strip_.Tab()));
}

PixelBox TabStripPeer::DisplayArea() const {
  RECT area{};
  GetClientRect(Window(), &area);
  Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  MapWindowPoints(Window(), GetParent(Window()), reinterpret_cast<POINT*>(&area), 2);
  return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right - area.left),
          static_cast<int>(area.bottom - area.top)};
}

void TabStripPeer::OnNotify(UINT code) {
  if (code != TCN_SELCHANGE) return;
  strip_.ChooseTab(static_cast<int>(Send(TCM_GETCURSEL)));
  ValueChanged();  // the control with the focus may have refused to lose it
}

void TabStripPeer::ValueChanged() {
  if (Send(TCM_GETCURSEL) != strip_.Tab()) Send(TCM_SETCURSEL, static_cast<WPARAM>(strip_.Tab()));
  Context().maker.MakeDue();
  NativeControl* const opened = Context().peers.ByModel(strip_.Page(strip_.Tab()));
  if (opened != nullptr) opened->RefreshVisible();
  for (int index = 0; index < strip_.Count(); ++index) {
    NativeControl* const page = Context().peers.ByModel(strip_.Page(index));
    if (page == nullptr || page == opened) continue;
    // If a page were hidden while it has the focus, the dialog manager would search for a control without
    // end.
    if (page->OwnsNativeFocus()) SetFocus(Window());
    page->RefreshVisible();
  }
}

TabPagePeer::TabPagePeer(const PeerContext& context, TabPage& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = kPageWindowClass,
                     .style = WS_CLIPSIBLINGS,
                     .extended_style = WS_EX_CONTROLPARENT,
                     .box = AreaOf(context, model)}) {
  // Above the strip: the page must paint over it, and the Tab key must reach the page before the strip.
  SetWindowPos(Window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

LRESULT TabPagePeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const std::optional<LRESULT> answer = ReflectToPeer(Context().peers, message, wparam, lparam);
  return answer.has_value() ? *answer : NativeControl::HandleMessage(message, wparam, lparam);
}
}  // namespace qdix::ui::win32
