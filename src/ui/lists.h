// List box, drop-down list and drop-down combo: rows of text, a number kept beside each row, one selection.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

/// What the three kinds share.
class ListControl : public Control {
 public:
  static constexpr int kNoSelection = -1;

  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  /// The text of a row, or an empty text outside the list.
  [[nodiscard]] const std::string& Item(int index) const;
  [[nodiscard]] std::int32_t ItemData(int index) const;
  [[nodiscard]] int SelectedIndex() const { return selected_; }
  /// The text of the selected row, or an empty text.
  [[nodiscard]] const std::string& SelectedText() const { return Item(selected_); }

  /// Filling and clearing fire nothing; clearing drops the selection. Rows beyond the 32,767 that the
  /// system's lists hold are not taken.
  void AddItem(std::string_view text, std::int32_t item_data = 0);
  void Clear();

  /// Selects a row, or nothing with kNoSelection. Fires OnClick when the index changes to a row, unless the
  /// list was made without that. Outside the list is error 380 and changes nothing.
  base::Status SetSelectedIndex(int index);

  /// The user picks a row. Nothing when unreachable or no such row.
  void ChooseIndex(int index);
  /// The user picks the first row with this text; false when there is none.
  bool Choose(std::string_view text);

  Handler OnClick;

 protected:
  ListControl(Container& parent, Kind kind, const Design& design, bool code_fires_click);

  /// The first row with this text, or kNoSelection.
  [[nodiscard]] int IndexOf(std::string_view text) const;
  /// Moves the selection without firing anything.
  void SelectSilently(int index) {
    selected_ = index;
    Notify(Change::kValue);
  }

  /// Called after the selection changed, before OnClick.
  virtual void SelectionChanged() {}
  /// True where picking the row that is already selected fires OnClick again.
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

/// What the keys Del, Alt+Up and Alt+Down ask of the selected row.
enum class RowKey : std::uint8_t {
  kRemove,
  kMoveUp,
  kMoveDown
};

/// The selection index -1 clears without OnClick. A user's click on a row fires OnClick also when the row is
/// already selected.
class ListBox final : public ListControl {
 public:
  ListBox(Container& parent, const Design& design) : ListControl(parent, Kind::kListBox, design, true) {}

  /// The user's double click on a row (selects it first), or on the empty part with kNoSelection (selects
  /// nothing new). Nothing when unreachable or no such row.
  void DoubleClick(int index);
  /// Like a double click on the selected row.
  void PressEnter() override;
  /// The user's key on the list; nothing when unreachable.
  void PressRowKey(RowKey key);

  Handler OnDoubleClick;
  base::Callback<base::Status(RowKey)> OnRowKey;

 private:
  [[nodiscard]] bool SameRowFires() const override { return true; }
};

/// Whether an assignment from code fires OnClick; off for lists whose click is the user's choice only.
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
  /// Selects the first row that equals the text. A text that equals no row keeps the selection and fires
  /// nothing.
  void SetText(std::string_view text);
};

/// A drop-down list whose text can also be typed. Selecting a row takes over its text, and fires OnChange
/// when the text differs; selecting nothing keeps the text.
class DropDownCombo final : public ListControl {
 public:
  DropDownCombo(Container& parent, const Design& design)
      : ListControl(parent, Kind::kDropDownCombo, design, true) {}

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Sets the text; selects the first row that equals it, or none. Fires OnChange when the text differs.
  void SetText(std::string_view text);
  /// The user changed the text in the window. Fires OnChange when it differs; the selection follows as with
  /// SetText.
  void UserEdited(std::string_view text);

  Handler OnChange;

 private:
  void SelectionChanged() override;
  void TextChanged();

  std::string text_;
};

}  // namespace qdix::ui
