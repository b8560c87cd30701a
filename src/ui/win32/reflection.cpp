#include "ui/win32/reflection.h"

#include "ui/win32/peer_table.h"

namespace qdix::ui::win32 {

namespace {

NativeControl* SenderOf(const PeerTable& peers, LPARAM lparam) {
  return peers.ByWindow(reinterpret_cast<HWND>(lparam));
}

std::optional<LRESULT> ReflectCommand(const PeerTable& peers, WPARAM wparam, LPARAM lparam) {
  // For Enter, the dialog manager identifies the default button only by number, because the button is not a
  // direct child of the main window.
  NativeControl* const peer = lparam == 0 ? peers.ByNumber(LOWORD(wparam)) : SenderOf(peers, lparam);
  if (peer == nullptr) return std::nullopt;
  peer->OnCommand(HIWORD(wparam));
  return 0;
}

}  // namespace

std::optional<LRESULT> ReflectToPeer(const PeerTable& peers, UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_COMMAND:
      return ReflectCommand(peers, wparam, lparam);
    case WM_NOTIFY: {
      const auto* const header = reinterpret_cast<const NMHDR*>(lparam);
      NativeControl* const peer = peers.ByWindow(header->hwndFrom);
      if (peer == nullptr) return std::nullopt;
      peer->OnNotify(header->code);
      return 0;
    }
    case WM_HSCROLL:
    case WM_VSCROLL: {
      NativeControl* const peer = SenderOf(peers, lparam);
      if (peer == nullptr) return std::nullopt;
      peer->OnScroll(LOWORD(wparam));
      return 0;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
      NativeControl* const peer = peers.ByWindow(item.hwndItem);
      if (peer == nullptr) return std::nullopt;
      peer->OnDrawItem(item);
      return TRUE;
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: {
      NativeControl* const peer = SenderOf(peers, lparam);
      HBRUSH const brush = peer == nullptr ? nullptr : peer->Paint(message, reinterpret_cast<HDC>(wparam));
      if (brush == nullptr) return std::nullopt;
      return reinterpret_cast<LRESULT>(brush);
    }
    default:
      return std::nullopt;
  }
}

}  // namespace qdix::ui::win32
