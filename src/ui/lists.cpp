#include "ui/lists.h"

namespace qdix::ui {

namespace {

/// A Windows 95 list box counts its rows in 16 bits.
constexpr int kMaxRows = 32767;

}  // namespace

ListControl::ListControl(Container& parent, Kind kind, const Design& design, bool code_fires_click)
    : Control(&parent, kind, design), code_fires_click_(code_fires_click) {}

const std::string& ListControl::Item(int index) const {
  if (index < 0 || index >= Count()) return no_text_;
  return items_[static_cast<std::size_t>(index)].text;
}

std::int32_t ListControl::ItemData(int index) const {
  if (index < 0 || index >= Count()) return 0;
  return items_[static_cast<std::size_t>(index)].data;
}

void ListControl::AddItem(std::string_view text, std::int32_t item_data) {
  if (Count() >= kMaxRows) return;
  items_.push_back({std::string(text), item_data});
  Notify(Change::kItems);
}

void ListControl::Clear() {
  items_.clear();
  selected_ = kNoSelection;
  Notify(Change::kItems);
}

base::Status ListControl::SetSelectedIndex(int index) {
  if (index < kNoSelection || index >= Count()) return base::kInvalidPropertyValue;
  if (selected_ == index) return base::kDone;
  Select(index);
  if (index != kNoSelection && code_fires_click_) Events().Run(OnClick);
  return base::kDone;
}

void ListControl::Select(int index) {
  SelectSilently(index);
  SelectionChanged();
}

void ListControl::ChooseIndex(int index) {
  if (!Reachable() || index < 0 || index >= Count()) return;
  if (selected_ != index) {
    Select(index);
  } else if (!SameRowFires()) {
    return;
  }
  Events().Run(OnClick);
}

int ListControl::IndexOf(std::string_view text) const {
  for (int index = 0; index < Count(); ++index) {
    if (Item(index) == text) return index;
  }
  return kNoSelection;
}

bool ListControl::Choose(std::string_view text) {
  const int index = IndexOf(text);
  if (index == kNoSelection || !Reachable()) return false;
  ChooseIndex(index);
  return true;
}

void ListBox::DoubleClick(int index) {
  if (!Reachable() || index < kNoSelection || index >= Count()) return;
  if (index != kNoSelection && index != SelectedIndex()) ChooseIndex(index);
  Events().Run(OnDoubleClick);
}

void ListBox::PressEnter() {
  if (Reachable() && SelectedIndex() != kNoSelection) Events().Run(OnDoubleClick);
}

void ListBox::PressRowKey(RowKey key) {
  if (Reachable()) Events().Run(OnRowKey, key);
}

void DropDownList::SetText(std::string_view text) {
  const int index = IndexOf(text);
  if (index != kNoSelection) base::Ignore(SetSelectedIndex(index));  // the row was just found
}

/// Updates text and selection together, before the peer or OnChange can see either.
void DropDownCombo::SetText(std::string_view text) {
  const bool differs = text_ != text;
  text_ = text;
  const int index = IndexOf(text_);
  if (index != SelectedIndex()) SelectSilently(index);
  if (differs) TextChanged();
}

void DropDownCombo::UserEdited(std::string_view text) { SetText(text); }

void DropDownCombo::SelectionChanged() {
  if (SelectedIndex() == kNoSelection || text_ == SelectedText()) return;
  text_ = SelectedText();
  TextChanged();
}

void DropDownCombo::TextChanged() {
  Notify(Change::kValue);
  Events().Run(OnChange);
}

}  // namespace qdix::ui
