// List box, drop-down list and drop-down combo box: rows of text, a number for each row, one selection.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

/// Base of the three kinds of list.
class ListControl : public Control {
 public:
  static constexpr int kNoSelection = -1;

  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// Returns the text of a row; empty if there is no such row.
  [[nodiscard]] const std::string& Item(int index) const;
  [[nodiscard]] std::int32_t ItemData(int index) const;
  [[nodiscard]] int SelectedIndex() const { return selected_; }
  /// Returns the text of the selected row; empty if none is selected.
  [[nodiscard]] const std::string& SelectedText() const { return Item(selected_); }

  /// Adding rows and clearing fire nothing. Clearing also removes the selection. Ignores rows beyond 32,767,
  /// the limit of the native lists.
  void AddItem(std::string_view text, std::int32_t item_data = 0);
  void Clear();

  /// Selects a row, or none with kNoSelection. Fires OnClick when the selection moves to another row, unless
  /// the list was made without that. An index outside the list returns error 380 and changes nothing.
  base::Status SetSelectedIndex(int index);

  /// The user picks a row. Does nothing if the list is unreachable or there is no such row.
  void ChooseIndex(int index);
  /// The user picks the first row with this text. Returns false if there is none.
  bool Choose(std::string_view text);

  Handler OnClick;

 protected:
  ListControl(Container& parent, Kind kind, const Design& design, bool code_fires_click);

  /// Returns the first row with this text, or kNoSelection.
  [[nodiscard]] int IndexOf(std::string_view text) const;
  /// Moves the selection without firing anything.
  void SelectSilently(int index) {
    selected_ = index;
    Notify(Change::kValue);
  }

  /// Called after the selection changed and before OnClick.
  virtual void SelectionChanged() {}
  /// True if picking the selected row again fires OnClick.
  [[nodiscard]] virtual bool SameRowFires() const { return false; }

 private:
  struct Row {
    std::string text;
    std::int32_t data;
  };
  void Select(int index);

  std::vector<Row> items_;
  const std::string no_text_;
  int selected_ = kNoSelection;
  bool code_fires_click_;
};

/// What Del, Alt+Up and Alt+Down do to the selected row.
enum class RowKey : std::uint8_t {
  kRemove,
  kMoveUp,
  kMoveDown
};

/// Setting the selection to -1 clears it without OnClick. A user's click fires OnClick even on the selected
/// row.
class ListBox final : public ListControl {
 public:
  ListBox(Container& parent, const Design& design) : ListControl(parent, Kind::kListBox, design, true) {}

  /// The user double-clicks a row, which selects it first, or the empty part (kNoSelection), which leaves the
  /// selection alone. Does nothing if the list is unreachable or there is no such row.
  void DoubleClick(int index);
  /// Acts like a double click on the selected row.
  void PressEnter() override;
  /// The user presses a row key in the list. Does nothing if the list is unreachable.
  void PressRowKey(RowKey key);

  Handler OnDoubleClick;
  base::Callback<base::Status(RowKey)> OnRowKey;

 private:
  [[nodiscard]] bool SameRowFires() const override { return true; }
};

/// Whether an assignment from code fires OnClick. kNo is for lists whose OnClick must run only for the user's
/// choice.
enum class CodeFiresClick : bool {
  kNo,
  kYes
};

class DropDownList final : public ListControl {
 public:
  DropDownList(Container& parent, const Design& design,
               CodeFiresClick code_fires_click = CodeFiresClick::kYes)
      : ListControl(parent, Kind::kDropDownList, design, code_fires_click == CodeFiresClick::kYes) {}

  [[nodiscard]] const std::string& Text() const { return SelectedText(); }
  /// Selects the first row that equals the text. If there is none, keeps the selection and fires nothing.
  void SetText(std::string_view text);
};

/// A drop-down list with a text that the user can also type. Selecting a row copies its text and fires
/// OnChange if the text differs. Selecting none keeps the text.
class DropDownCombo final : public ListControl {
 public:
  DropDownCombo(Container& parent, const Design& design)
      : ListControl(parent, Kind::kDropDownCombo, design, true) {}

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Sets the text and selects the first row that equals it, or none. Fires OnChange if the text differs.
  void SetText(std::string_view text);
  /// The user changed the text in the window. Fires OnChange if it differs; the selection follows as in
  /// SetText.
  void UserEdited(std::string_view text);

  Handler OnChange;

 private:
  void SelectionChanged() override;
  void TextChanged();

  std::string text_;
};

}  // namespace qdix::ui
