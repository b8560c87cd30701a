// Windows of the list box, the drop-down list and the drop-down combo.
#pragma once

#include "ui/lists.h"
#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class ListBoxPeer final : public NativeControl {
 public:
  using ModelType = ListBox;
  static constexpr Kind kKind = Kind::kListBox;

  ListBoxPeer(const PeerContext& context, ListBox& model, HWND parent, int number);
  void OnCommand(UINT code) override;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void ValueChanged() override;
  void ItemsChanged() override;
  void CaptionChanged() override {}
  /// Returns the row under a point of the window, or kNoSelection below the last row.
  [[nodiscard]] int RowAt(LPARAM point) const;
  /// Sets the horizontal scroll range to the width of the longest row.
  void FitWidth();

  ListBox& list_;
  int measured_rows_ = 0;
  int widest_row_px_ = 0;
};

/// Base of both kinds of drop-down. The height of the model's place is the height of the open list.
class DropDownPeer : public NativeControl {
 public:
  void OnCommand(UINT code) override;

 protected:
  DropDownPeer(const PeerContext& context, ListControl& model, HWND parent, int number, DWORD style);
  void ValueChanged() override;
  void ItemsChanged() override;
  void CaptionChanged() override {}

 private:
  void TakeSelection();

  ListControl& list_;
};

class DropDownListPeer final : public DropDownPeer {
 public:
  using ModelType = DropDownList;
  static constexpr Kind kKind = Kind::kDropDownList;

  DropDownListPeer(const PeerContext& context, DropDownList& model, HWND parent, int number);
};

class DropDownComboPeer final : public DropDownPeer {
 public:
  using ModelType = DropDownCombo;
  static constexpr Kind kKind = Kind::kDropDownCombo;

  DropDownComboPeer(const PeerContext& context, DropDownCombo& model, HWND parent, int number);
  void OnCommand(UINT code) override;

 private:
  void ValueChanged() override;

  DropDownCombo& combo_;
};

}  // namespace qdix::ui::win32
