// The window of a text box. The native edit control does the editing. The model sees each character
// beforehand and the text afterwards.
#pragma once

#include "ui/text_box.h"
#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

/// Returns the text of any window.
[[nodiscard]] std::string TextOfWindow(HWND window);

class TextBoxPeer final : public NativeControl {
 public:
  using ModelType = TextBox;
  static constexpr Kind kKind = Kind::kTextBox;

  TextBoxPeer(const PeerContext& context, TextBox& model, HWND parent, int number);
  void OnCommand(UINT code) override;
  HBRUSH Paint(UINT message, HDC device) override;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void ValueChanged() override;
  void TextSelectionChanged() override;
  void CaptionChanged() override {}

  TextBox& text_box_;
  bool assigning_ = false;
};

}  // namespace qdix::ui::win32
