#include "ui/win32/picture_button_peer.h"

namespace qdix::ui::win32 {

namespace {

constexpr int kIconPx = 16;
constexpr int kGapPx = 4;
/// From the edge of the button to the focus rectangle.
constexpr int kFocusInsetPx = 4;

HICON LoadSmallIcon(HINSTANCE instance, int number) {
  return static_cast<HICON>(
      LoadImageA(instance, MAKEINTRESOURCEA(number), IMAGE_ICON, kIconPx, kIconPx, LR_SHARED));
}

}  // namespace

PictureButtonPeer::PictureButtonPeer(const PeerContext& context, Button& model, HWND parent, int number)
    : ButtonPeer(context, model, parent, number, BS_OWNERDRAW),
      icon_(LoadSmallIcon(context.instance, model.PictureId())),
      is_default_(model.Role() == ButtonRole::kDefault) {}

/// Leaves the window style alone: another style would end the owner drawing.
void PictureButtonPeer::ShowAsDefault(bool is_default) {
  is_default_ = is_default;
  InvalidateRect(Window(), nullptr, FALSE);
}

void PictureButtonPeer::OnDrawItem(const DRAWITEMSTRUCT& item) {
  const bool is_pressed = (item.itemState & ODS_SELECTED) != 0;
  RECT face = item.rcItem;
  if (is_default_) {
    FrameRect(item.hDC, &face, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&face, -1, -1);
  }
  DrawFrameControl(item.hDC, &face, DFC_BUTTON, DFCS_BUTTONPUSH | (is_pressed ? DFCS_PUSHED : 0U));
  RECT content = item.rcItem;
  if (is_pressed) OffsetRect(&content, 1, 1);
  DrawContent(item.hDC, content, (item.itemState & ODS_DISABLED) != 0);
  if ((item.itemState & ODS_FOCUS) != 0) {
    RECT line = item.rcItem;
    InflateRect(&line, -kFocusInsetPx, -kFocusInsetPx);
    DrawFocusRect(item.hDC, &line);
  }
}

void PictureButtonPeer::DrawContent(HDC device, const RECT& face, bool is_disabled) const {
  const std::string caption = NativeCaption();
  RECT text{};
  DrawTextA(device, caption.c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT);
  const auto left = (face.left + face.right - (kIconPx + kGapPx + text.right)) / 2;
  const auto top = (face.top + face.bottom - kIconPx) / 2;
  DrawIconEx(device, static_cast<int>(left), static_cast<int>(top), icon_, kIconPx, kIconPx, 0, nullptr,
             DI_NORMAL);
  text = {.left = left + kIconPx + kGapPx, .top = face.top, .right = face.right, .bottom = face.bottom};
  SetBkMode(device, TRANSPARENT);
  SetTextColor(device, GetSysColor(is_disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
  DrawTextA(device, caption.c_str(), -1, &text, DT_SINGLELINE | DT_LEFT | DT_VCENTER);
}

}  // namespace qdix::ui::win32
