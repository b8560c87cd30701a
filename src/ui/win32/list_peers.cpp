#include "ui/win32/list_peers.h"

#include <algorithm>
#include <optional>

#include "ui/win32/focus_keeper.h"
#include "ui/win32/text_box_peer.h"

namespace qdix::ui::win32 {

namespace {

/// The equivalent messages of a list box and a combo box.
struct ListMessages {
  UINT count;
  UINT clear;
  UINT add;
  UINT selected;
  UINT select;
};
constexpr ListMessages kListBox{LB_GETCOUNT, LB_RESETCONTENT, LB_ADDSTRING, LB_GETCURSEL, LB_SETCURSEL};
constexpr ListMessages kComboBox{CB_GETCOUNT, CB_RESETCONTENT, CB_ADDSTRING, CB_GETCURSEL, CB_SETCURSEL};

int SelectedRow(HWND window, const ListMessages& messages) {
  return static_cast<int>(SendMessageA(window, messages.selected, 0, 0));
}

/// Appends the new rows. Models only add rows at the end or clear all of them.
void CopyRows(HWND window, const ListMessages& messages, const ListControl& list) {
  int count = static_cast<int>(SendMessageA(window, messages.count, 0, 0));
  if (count > list.Count()) {
    SendMessageA(window, messages.clear, 0, 0);
    count = 0;
  }
  for (; count < list.Count(); ++count) {
    SendMessageA(window, messages.add, 0, reinterpret_cast<LPARAM>(list.Item(count).c_str()));
  }
}

/// The index -1 deselects.
void CopySelection(HWND window, const ListMessages& messages, const ListControl& list) {
  if (SelectedRow(window, messages) == list.SelectedIndex()) return;
  SendMessageA(window, messages.select, static_cast<WPARAM>(list.SelectedIndex()), 0);
}

/// Space that a list box leaves before and after the text of a row.
constexpr int kRowMarginsPx = 4;

std::optional<RowKey> RowKeyOf(UINT message, WPARAM key) {
  if (message == WM_KEYDOWN && key == VK_DELETE) return RowKey::kRemove;
  if (message == WM_SYSKEYDOWN && key == VK_UP) return RowKey::kMoveUp;
  if (message == WM_SYSKEYDOWN && key == VK_DOWN) return RowKey::kMoveDown;
  return std::nullopt;
}

}  // namespace

ListBoxPeer::ListBoxPeer(const PeerContext& context, ListBox& model, HWND parent, int number)
    : NativeControl(context, model, parent, number,
                    {.window_class = "LISTBOX",
                     .style = WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                     .extended_style = WS_EX_CLIENTEDGE,
                     .box = context.font.Pixels(model.GetPlace())}),
      list_(model) {
  ItemsChanged();
  ValueChanged();
}

void ListBoxPeer::OnCommand(UINT code) {
  if (code != LBN_SELCHANGE) return;
  list_.ChooseIndex(SelectedRow(Window(), kListBox));
  ValueChanged();  // the model may have kept its own selection
}

LRESULT ListBoxPeer::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (const std::optional<RowKey> key = RowKeyOf(message, wparam)) {
    list_.PressRowKey(*key);
    return 0;
  }
  const LRESULT result = NativeControl::HandleMessage(message, wparam, lparam);
  if (message == WM_LBUTTONDBLCLK) list_.DoubleClick(RowAt(lparam));
  return result;
}

int ListBoxPeer::RowAt(LPARAM point) const {
  const auto answer = static_cast<DWORD>(Send(LB_ITEMFROMPOINT, 0, point));
  return HIWORD(answer) != 0 || list_.Count() == 0 ? ListControl::kNoSelection : LOWORD(answer);
}

void ListBoxPeer::ValueChanged() { CopySelection(Window(), kListBox, list_); }

void ListBoxPeer::ItemsChanged() {
  CopyRows(Window(), kListBox, list_);
  FitWidth();
}

void ListBoxPeer::FitWidth() {
  if (list_.Count() < measured_rows_) {
    measured_rows_ = 0;
    widest_row_px_ = 0;
    Send(WM_HSCROLL, SB_LEFT);  // otherwise rows that fit again would stay scrolled sideways
  }
  for (; measured_rows_ < list_.Count(); ++measured_rows_) {
    const int width_px = Context().font.TextWidthPixels(list_.Item(measured_rows_)) + kRowMarginsPx;
    widest_row_px_ = std::max(widest_row_px_, width_px);
  }
  Send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest_row_px_));
}

DropDownPeer::DropDownPeer(const PeerContext& context, ListControl& model, HWND parent, int number,
                           DWORD style)
    : NativeControl(context, model, parent, number,
                    {.window_class = "COMBOBOX",
                     .style = style | WS_TABSTOP | WS_VSCROLL,
                     .box = context.font.Pixels(model.GetPlace())}),
      list_(model) {
  CopyRows(Window(), kComboBox, list_);
  CopySelection(Window(), kComboBox, list_);
}

void DropDownPeer::OnCommand(UINT code) {
  switch (code) {
    case CBN_SETFOCUS:  // also sent when the edit field inside gets the keyboard
      Context().focus.Arrived(*this);
      break;
    case CBN_SELCHANGE:
      // While the list is open the user is still looking; the choice counts when it closes.
      if (Send(CB_GETDROPPEDSTATE) == 0) TakeSelection();
      break;
    case CBN_SELENDOK:
    case CBN_CLOSEUP:
      TakeSelection();
      break;
    default:
      break;
  }
}

void DropDownPeer::TakeSelection() {
  if (SelectedRow(Window(), kComboBox) == list_.SelectedIndex()) return;
  list_.ChooseIndex(SelectedRow(Window(), kComboBox));
  ValueChanged();  // the model may have kept its own selection
}

void DropDownPeer::ValueChanged() { CopySelection(Window(), kComboBox, list_); }

void DropDownPeer::ItemsChanged() { CopyRows(Window(), kComboBox, list_); }

DropDownListPeer::DropDownListPeer(const PeerContext& context, DropDownList& model, HWND parent, int number)
    : DropDownPeer(context, model, parent, number, CBS_DROPDOWNLIST) {}

DropDownComboPeer::DropDownComboPeer(const PeerContext& context, DropDownCombo& model, HWND parent,
                                     int number)
    : DropDownPeer(context, model, parent, number, CBS_DROPDOWN | CBS_AUTOHSCROLL), combo_(model) {
  ValueChanged();
}

void DropDownComboPeer::OnCommand(UINT code) {
  if (code == CBN_EDITCHANGE) {
    combo_.UserEdited(TextOfWindow(Window()));
    return;
  }
  DropDownPeer::OnCommand(code);
}

/// Updates the list's selection first, because that may overwrite the edit field. Leaves equal text alone, so
/// the caret of a typing user does not move.
void DropDownComboPeer::ValueChanged() {
  if (combo_.SelectedText() == combo_.Text()) DropDownPeer::ValueChanged();
  if (TextOfWindow(Window()) != combo_.Text()) SetWindowTextA(Window(), combo_.Text().c_str());
}

}  // namespace qdix::ui::win32
