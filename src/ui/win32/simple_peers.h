// Windows of the simple controls: label, frame, button, check box, option button, picture.
#pragma once

#include "ui/simple_controls.h"
#include "ui/win32/native_control.h"

namespace qdix::ui::win32 {

class LabelPeer final : public NativeControl {
 public:
  using ModelType = Label;
  static constexpr Kind kKind = Kind::kLabel;

  LabelPeer(const PeerContext& context, Label& model, HWND parent, int number);

 private:
  [[nodiscard]] bool TakesKeyboard() const override { return false; }
  void PixelsChanged() override { UpdateWindow(Window()); }
};

class FramePeer final : public NativeControl {
 public:
  using ModelType = Frame;
  static constexpr Kind kKind = Kind::kFrame;

  FramePeer(const PeerContext& context, Frame& model, HWND parent, int number);
  void ControlChanged(Control& control, Change change) override;

 private:
  [[nodiscard]] bool TakesKeyboard() const override { return false; }
};

class PicturePeer final : public NativeControl {
 public:
  using ModelType = Picture;
  static constexpr Kind kKind = Kind::kPicture;

  PicturePeer(const PeerContext& context, Picture& model, HWND parent, int number);

 private:
  [[nodiscard]] bool TakesKeyboard() const override { return false; }
};

class ButtonPeer : public NativeControl {
 public:
  using ModelType = Button;
  static constexpr Kind kKind = Kind::kButton;

  ButtonPeer(const PeerContext& context, Button& model, HWND parent, int number);
  void OnCommand(UINT code) override;

  /// Shows or removes the heavy border of the button that Enter presses.
  virtual void ShowAsDefault(bool is_default);

 protected:
  ButtonPeer(const PeerContext& context, Button& model, HWND parent, int number, DWORD style);

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void ShowOtherDefault(bool is_default);

  Button& button_;
};

class CheckBoxPeer final : public NativeControl {
 public:
  using ModelType = CheckBox;
  static constexpr Kind kKind = Kind::kCheckBox;

  CheckBoxPeer(const PeerContext& context, CheckBox& model, HWND parent, int number);
  void OnCommand(UINT code) override;

 private:
  void ValueChanged() override;

  CheckBox& box_;
};

class OptionButtonPeer final : public NativeControl {
 public:
  using ModelType = OptionButton;
  static constexpr Kind kKind = Kind::kOptionButton;

  OptionButtonPeer(const PeerContext& context, OptionButton& model, HWND parent, int number);
  void OnCommand(UINT code) override;

 private:
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void ValueChanged() override;
  /// The Tab key stops at one option of a group: the selected one, or the first if none is selected.
  void RefreshTabStop();
  void RefreshTabStopsOfGroup() const;
  /// Chooses the next usable option of the group in this direction (1 or -1), wrapping at the ends.
  void ChooseNeighbour(int direction);

  OptionButton& option_;
  bool taking_focus_ = false;
};

}  // namespace qdix::ui::win32
