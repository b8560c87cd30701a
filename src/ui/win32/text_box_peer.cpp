#include "ui/win32/text_box_peer.h"

namespace qdix::ui::win32 {

std::string TextOfWindow(HWND window) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)), '\0');
  // GetWindowText writes its NUL over the one that std::string keeps at the end.
  const int length = GetWindowTextA(window, text.data(), static_cast<int>(text.size()) + 1);
  text.resize(static_cast<std::size_t>(length));
  return text;
}

TextBoxPeer::TextBoxPeer(const PeerContext& context, TextBox& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = "EDIT",
                     .style = WS_TABSTOP | ES_AUTOHSCROLL,
                     .extended_style = WS_EX_CLIENTEDGE,
                     .box = context.font.Pixels(model.GetPlace())}),
      text_box_(model) {
  Send(EM_LIMITTEXT, static_cast<WPARAM>(text_box_.MaxLength()));
  ValueChanged();
}

void TextBoxPeer::OnCommand(UINT code) {
  if (code != EN_CHANGE || assigning_) return;
  DWORD start = 0;
  DWORD end = 0;
  Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  text_box_.UserEdited(TextOfWindow(Window()), static_cast<int>(start), static_cast<int>(end - start));
}

LRESULT TextBoxPeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  // A Tab that arrives as a character comes from a key that switched tabs.
  if (message == WM_CHAR && (wparam == VK_TAB || !text_box_.AcceptsKey(static_cast<char>(wparam)))) return 0;
  return NativeControl::HandleMessage(message, wparam, lparam);
}

/// A disabled box sends the message of a label. It keeps the native disabled look unless its model has a
/// colour of its own.
HBRUSH TextBoxPeer::Paint(UINT message, HDC device) {
  const bool is_disabled = message == WM_CTLCOLORSTATIC;
  if (is_disabled && text_box_.BackColour() == kWindowBackground) return nullptr;
  HBRUSH const background = NativeControl::Paint(message, device);
  if (is_disabled) SetTextColor(device, GetSysColor(COLOR_GRAYTEXT));
  return background;
}

void TextBoxPeer::ValueChanged() {
  if (TextOfWindow(Window()) == text_box_.Text()) return;
  assigning_ = true;
  SetWindowTextA(Window(), text_box_.Text().c_str());
  assigning_ = false;
  TextSelectionChanged();
}

void TextBoxPeer::TextSelectionChanged() {
  const int start = text_box_.SelectionStart();
  Send(EM_SETSEL, static_cast<WPARAM>(start), start + text_box_.SelectionLength());
}

}  // namespace qdix::ui::win32
