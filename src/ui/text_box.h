// A single-line text box.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

/// What a box for a number lets through: digits, and backspace.
[[nodiscard]] bool IsDigitKey(char character);

class TextBox final : public Control {
 public:
  /// The most characters a user can type; assignments are cut to it as well.
  static constexpr int kDefaultMaxLength = 255;

  TextBox(Container& parent, const Design& design, int max_length = kDefaultMaxLength);

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Fires OnChange when the text differs.
  void SetText(std::string_view text);

  [[nodiscard]] int MaxLength() const { return max_length_; }
  [[nodiscard]] int SelectionStart() const { return selection_start_; }
  [[nodiscard]] int SelectionLength() const { return selection_length_; }
  void SelectAll();

  /// The user types one character at the selection, which it replaces; 8 is backspace. OnKeyPress sees it
  /// first and may swallow it. Returns false when nothing was typed (swallowed, unreachable, full).
  bool Type(char character);
  /// The user types several characters one after the other.
  void TypeText(std::string_view text);
  /// Asks OnKeyPress about a character without typing it: for a peer whose window does the editing. False
  /// means swallow it.
  [[nodiscard]] bool AcceptsKey(char character);
  /// The user changed the whole text in the window (typing, pasting): like Type, without OnKeyPress.
  void UserEdited(std::string_view text, int selection_start, int selection_length);

  void PressEnter() override;

  Handler OnChange;
  Handler OnEnter;
  /// Sees each character before it is typed and sets it to 0 to swallow it.
  base::Callback<base::Status(char&)> OnKeyPress;

 private:
  void ReplaceText(std::string_view text);

  std::string text_;
  int max_length_;
  int selection_start_ = 0;
  int selection_length_ = 0;
};

}  // namespace qdix::ui
