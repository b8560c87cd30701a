// A single-line text box.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

/// Drops a typed character that a box for numbers does not accept: sets everything but digits and backspace
/// to 0.
void KeepDigits(char& character);

class TextBox final : public Control {
 public:
  /// Maximum length that a user can type. Text set by code is cut to it.
  static constexpr int kDefaultMaxLength = 255;

  TextBox(Container& parent, const Design& design, int max_length = kDefaultMaxLength);

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Fires OnChange if the text differs.
  void SetText(std::string_view text);

  [[nodiscard]] int MaxLength() const { return max_length_; }
  [[nodiscard]] int SelectionStart() const { return selection_start_; }
  [[nodiscard]] int SelectionLength() const { return selection_length_; }
  void SelectAll();

  /// The user types one character, which replaces the selection; 8 is backspace. OnKeyPress sees it first and
  /// may swallow it. Returns false if nothing was typed (swallowed, unreachable, full).
  bool Type(char character);
  void TypeText(std::string_view text);
  /// Asks OnKeyPress about a character without typing it. For a peer whose window does the editing. False
  /// means that the peer must swallow the character.
  [[nodiscard]] bool AcceptsKey(char character);
  /// The user edited the text in the window (typing, pasting). Like Type, but without OnKeyPress.
  void UserEdited(std::string_view text, int selection_start, int selection_length);

  void PressEnter() override;

  Handler OnChange;
  Handler OnEnter;
  /// Sees each character before it is typed and may set it to 0 to swallow it.
  base::Callback<base::Status(char&)> OnKeyPress;

 private:
  void ReplaceText(std::string_view text);

  std::string text_;
  int max_length_;
  int selection_start_ = 0;
  int selection_length_ = 0;
};

}  // namespace qdix::ui
