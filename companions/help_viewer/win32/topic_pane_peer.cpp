#include "help_viewer/win32/topic_pane_peer.h"

#include "help_viewer/pane_picture.h"
#include "help_viewer/win32/pane_colours.h"
#include "ui/win32/window_class.h"

namespace qdix::help_viewer::win32 {

namespace {

/// For Windows 98 and later. If the user has set 0 lines, the wheel scrolls nothing.
constexpr UINT kMouseWheel = 0x020A;
constexpr UINT kAskWheelLines = 0x0068;
/// On Windows 95 the mouse driver itself sends this message to the window with the focus; wParam is the turn.
constexpr const char* kDriverWheelMessage = "MSWHEEL_ROLLMSG";
constexpr int kWheelNotch = 120;
constexpr UINT kDefaultWheelLines = 3;
/// Setting for one page per notch.
constexpr UINT kWheelPages = 0xFFFFFFFFU;
/// The hand of Windows 98 and later.
constexpr WORD kHandCursor = 32649;

bool IsDown(int key) { return GetKeyState(key) < 0; }

int Across(LPARAM point) { return static_cast<short>(LOWORD(point)); }
int Down(LPARAM point) { return static_cast<short>(HIWORD(point)); }

UINT WheelLines() {
  UINT lines = kDefaultWheelLines;
  SystemParametersInfoA(kAskWheelLines, 0, &lines, 0);
  return lines;
}

}  // namespace

TopicPanePeer::TopicPanePeer(const ui::win32::PeerContext& context, TopicPane& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = ui::win32::kDrawingWindowClass,
                     .style = WS_TABSTOP | WS_VSCROLL,
                     .extended_style = WS_EX_CLIENTEDGE,
                     .box = context.font.Pixels(model.GetPlace())}),
      pane_(model),
      driver_wheel_message_(RegisterWindowMessageA(kDriverWheelMessage)) {
  MakeMemoryDevice();
}

TopicPanePeer::~TopicPanePeer() { pane_.SurfaceChanged(nullptr, 0, 0); }

void TopicPanePeer::MakeMemoryDevice() {
  const std::unique_ptr<MemoryDevice> former = std::move(memory_);
  memory_ = std::make_unique<MemoryDevice>();
  SizeChanged();
}

LRESULT TopicPanePeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT:
      PaintWindow();
      return 0;
    case WM_ERASEBKGND:
      return 1;  // the picture covers everything
    case WM_SIZE:
      SizeChanged();
      return 0;
    case WM_DISPLAYCHANGE:
      MakeMemoryDevice();
      return 0;
    case WM_GETDLGCODE:
      return NativeControl::HandleMessage(message, wparam, lparam) | DialogCode(lparam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_SYSCOLORCHANGE:
      InvalidateRect(Window(), nullptr, FALSE);
      break;
    case WM_KEYDOWN:
      if (HandleKey(wparam)) return 0;
      break;
    case WM_VSCROLL:
      ScrollBarMoved(LOWORD(wparam));
      return 0;
    default:
      if (HandlePointer(message, wparam, lparam)) return message == WM_SETCURSOR ? TRUE : 0;
      break;
  }
  return NativeControl::HandleMessage(message, wparam, lparam);
}

bool TopicPanePeer::HandlePointer(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_LBUTTONDOWN:
      SetFocus(Window());
      pressed_link_ = pane_.LinkAt(Across(lparam), Down(lparam));
      if (pressed_link_ >= 0) pane_.FocusLink(pressed_link_);
      return true;
    case WM_LBUTTONUP: {
      const int released = pane_.LinkAt(Across(lparam), Down(lparam));
      const int pressed = pressed_link_;
      pressed_link_ = -1;
      if (released >= 0 && released == pressed) pane_.Follow(released);
      return true;
    }
    case WM_SETCURSOR:
      return ShowHandCursor(lparam);
    case kMouseWheel:
      WheelTurned(static_cast<short>(HIWORD(wparam)));
      return true;
    default:
      if (message != driver_wheel_message_ || message == 0) return false;
      WheelTurned(static_cast<int>(wparam));
      return true;
  }
}

/// Leaves the arrow if Windows has no hand cursor.
bool TopicPanePeer::ShowHandCursor(LPARAM hit) const {
  POINT pointer{};
  if (LOWORD(hit) != HTCLIENT || GetCursorPos(&pointer) == 0) return false;
  ScreenToClient(Window(), &pointer);
  if (pane_.LinkAt(static_cast<int>(pointer.x), static_cast<int>(pointer.y)) < 0) return false;
  HCURSOR const hand = LoadCursorA(nullptr, MAKEINTRESOURCEA(kHandCursor));
  if (hand == nullptr) return false;
  SetCursor(hand);
  return true;
}

void TopicPanePeer::WheelTurned(int turned) {
  wheel_rest_ += turned;
  const int notches = wheel_rest_ / kWheelNotch;
  wheel_rest_ %= kWheelNotch;
  const UINT lines = WheelLines();
  if (lines != kWheelPages) {
    pane_.ScrollLines(-notches * static_cast<int>(lines));
  } else if (notches != 0) {
    pane_.ScrollBy(notches > 0 ? TopicPane::Scroll::kPageUp : TopicPane::Scroll::kPageDown);
  }
}

bool TopicPanePeer::HandleKey(WPARAM key) {
  using Scroll = TopicPane::Scroll;
  if (IsDown(VK_CONTROL)) {
    const bool copies = key == 'C' || key == VK_INSERT;
    if (copies) pane_.Copy();
    return copies;
  }
  switch (key) {
    case VK_TAB:
      pane_.FocusNextLink(IsDown(VK_SHIFT));
      return true;
    case VK_UP:
      pane_.ScrollBy(Scroll::kLineUp);
      return true;
    case VK_DOWN:
      pane_.ScrollBy(Scroll::kLineDown);
      return true;
    case VK_PRIOR:
      pane_.ScrollBy(Scroll::kPageUp);
      return true;
    case VK_NEXT:
      pane_.ScrollBy(Scroll::kPageDown);
      return true;
    case VK_HOME:
      pane_.ScrollBy(Scroll::kTop);
      return true;
    case VK_END:
      pane_.ScrollBy(Scroll::kBottom);
      return true;
    default:
      return false;
  }
}

/// Keeps letters from being taken for access keys and arrow keys from moving the focus. Tab stays here as
/// long as there are links.
LRESULT TopicPanePeer::DialogCode(LPARAM message) {
  LRESULT code = DLGC_WANTARROWS | DLGC_WANTCHARS;
  const auto* const key = reinterpret_cast<const MSG*>(message);
  const bool is_tab = key != nullptr && key->message == WM_KEYDOWN && key->wParam == VK_TAB;
  if (is_tab && !IsDown(VK_CONTROL) && pane_.HasNextLink(IsDown(VK_SHIFT))) code |= DLGC_WANTMESSAGE;
  return code;
}

void TopicPanePeer::ScrollBarMoved(UINT code) {
  using Scroll = TopicPane::Scroll;
  switch (code) {
    case SB_LINEUP:
      return pane_.ScrollBy(Scroll::kLineUp);
    case SB_LINEDOWN:
      return pane_.ScrollBy(Scroll::kLineDown);
    case SB_PAGEUP:
      return pane_.ScrollBy(Scroll::kPageUp);
    case SB_PAGEDOWN:
      return pane_.ScrollBy(Scroll::kPageDown);
    case SB_TOP:
      return pane_.ScrollBy(Scroll::kTop);
    case SB_BOTTOM:
      return pane_.ScrollBy(Scroll::kBottom);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION: {
      SCROLLINFO info{};
      info.cbSize = sizeof info;
      info.fMask = SIF_TRACKPOS;
      if (GetScrollInfo(Window(), SB_VERT, &info) != 0) pane_.ScrollTo(info.nTrackPos);
      return;
    }
    default:
      return;
  }
}

void TopicPanePeer::SizeChanged() {
  RECT inner{};
  GetClientRect(Window(), &inner);
  pane_.SurfaceChanged(&memory_->text, static_cast<int>(inner.right), static_cast<int>(inner.bottom));
}

/// Disables the scroll bar instead of hiding it: hiding would change the width of the text.
void TopicPanePeer::ValueChanged() {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
  info.nMax = pane_.TheLayout().height - 1;
  info.nPage = static_cast<UINT>(pane_.Height());
  info.nPos = pane_.ScrollPosition();
  SetScrollInfo(Window(), SB_VERT, &info, TRUE);
  InvalidateRect(Window(), nullptr, FALSE);
}

/// Draws into memory first, to avoid flicker.
void TopicPanePeer::PaintWindow() {
  PAINTSTRUCT paint{};
  HDC const window = BeginPaint(Window(), &paint);
  const RECT& part = paint.rcPaint;
  const LONG width = part.right - part.left;
  const LONG height = part.bottom - part.top;
  if (width > 0 && height > 0) {
    const ui::win32::OwnedGdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(window, width, height));
    HGDIOBJ const former = SelectObject(Device(), bitmap.get());
    SetWindowOrgEx(Device(), part.left, part.top, nullptr);
    Draw(part);
    BitBlt(window, part.left, part.top, width, height, Device(), part.left, part.top, SRCCOPY);
    SetWindowOrgEx(Device(), 0, 0, nullptr);
    SelectObject(Device(), former);
  }
  EndPaint(Window(), &paint);
}

void TopicPanePeer::Draw(const RECT& part) {
  const int top = static_cast<int>(part.top);
  const int bottom = static_cast<int>(part.bottom);
  const Palette palette = SystemPalette(pane_.BackColour());
  memory_->text.FillRect(static_cast<int>(part.left), top, static_cast<int>(part.right - part.left),
                         bottom - top, palette.background);
  const int scroll = pane_.ScrollPosition();
  DrawLayout(memory_->text, pane_.TheLayout(),
             {.first_px = scroll + top, .end_px = scroll + bottom, .left_px = 0, .top_px = top}, palette,
             pane_.Marked());
  if (GetFocus() == Window()) DrawFocus(scroll);
}

/// Draws the focus rectangle around the link with the focus or, if there is none, around the pane.
void TopicPanePeer::DrawFocus(int down_px) const {
  SetTextColor(Device(), GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(Device(), ui::win32::ResolveColour(pane_.BackColour()));
  if (pane_.FocusedLink() < 0) {
    RECT inner{};
    GetClientRect(Window(), &inner);
    InflateRect(&inner, -1, -1);
    DrawFocusRect(Device(), &inner);
    return;
  }
  for (const Piece& piece : pane_.TheLayout().pieces) {
    if (piece.link != pane_.FocusedLink()) continue;
    const RECT box{piece.left - 1, piece.top - down_px, piece.left + piece.width + 1,
                   piece.top + piece.height - down_px};
    DrawFocusRect(Device(), &box);
  }
}

}  // namespace qdix::help_viewer::win32
