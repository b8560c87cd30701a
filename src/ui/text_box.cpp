#include "ui/text_box.h"

#include <algorithm>

#include "ui/form.h"

namespace qdix::ui {

namespace {

constexpr char kBackspace = 8;

int Length(std::string_view text) { return static_cast<int>(text.size()); }

}  // namespace

void KeepDigits(char& character) {
  const bool is_kept = (character >= '0' && character <= '9') || character == kBackspace;
  if (!is_kept) character = 0;
}

TextBox::TextBox(Container& parent, const Design& design, int max_length)
    : Control(&parent, Kind::kTextBox, design), max_length_(max_length) {}

void TextBox::SetText(std::string_view text) {
  text = text.substr(0, static_cast<std::size_t>(max_length_));
  if (text_ == text) return;
  selection_start_ = 0;
  selection_length_ = 0;
  ReplaceText(text);
}

void TextBox::PressEnter() {
  if (Reachable()) Events().Run(OnEnter);
}

void TextBox::ReplaceText(std::string_view text) {
  text_ = text;
  Notify(Change::kValue);
  Events().Run(OnChange);
}

void TextBox::SelectAll() {
  selection_start_ = 0;
  selection_length_ = Length(text_);
  Notify(Change::kTextSelection);
}

bool TextBox::AcceptsKey(char character) {
  char seen = character;
  Events().Run(OnKeyPress, seen);
  return seen != 0 && !GetForm().Unloaded();
}

bool TextBox::Type(char character) {
  if (!Reachable() || !AcceptsKey(character)) return false;
  // The handler may have changed the text and the selection, so read them only now.
  auto start = static_cast<std::size_t>(selection_start_);
  auto length = static_cast<std::size_t>(selection_length_);
  std::string text = text_;
  if (character == kBackspace) {
    if (length == 0) {
      if (start == 0) return false;
      --start;
      length = 1;
    }
    text.erase(start, length);
  } else {
    if (Length(text) - selection_length_ >= max_length_) return false;
    text.replace(start, length, 1, character);
    ++start;
  }
  selection_start_ = static_cast<int>(start);
  selection_length_ = 0;
  if (text == text_) {
    Notify(Change::kTextSelection);
  } else {
    ReplaceText(text);
  }
  return true;
}

void TextBox::TypeText(std::string_view text) {
  for (const char character : text) Type(character);
}

void TextBox::UserEdited(std::string_view text, int selection_start, int selection_length) {
  selection_start_ = std::clamp(selection_start, 0, Length(text));
  selection_length_ = std::clamp(selection_length, 0, Length(text) - selection_start_);
  if (text_ == text) return;
  text_ = text;
  Events().Run(OnChange);
}

}  // namespace qdix::ui
