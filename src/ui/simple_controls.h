// The controls with a caption: label, frame, button, check box, option button, picture.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

class Label final : public Control {
 public:
  Label(Container& parent, const Design& design) : Control(&parent, Kind::kLabel, design) {}

  /// Paints it now and not when the program comes to it.
  void Refresh() { Notify(Change::kRepaint); }
};

/// A group box. Option buttons of one frame belong together; disabling the frame disables what stands in it.
class Frame final : public Container {
 public:
  Frame(Container& parent, const Design& design) : Container(&parent, Kind::kFrame, design) {}
};

/// A still picture of the program's own resources; shows nothing where there is none.
class Picture final : public Control {
 public:
  Picture(Container& parent, const Design& design, int resource_id)
      : Control(&parent, Kind::kPicture, design), resource_id_(resource_id) {}
  [[nodiscard]] int ResourceId() const { return resource_id_; }

 private:
  int resource_id_;
};

enum class ButtonRole : std::uint8_t {
  kPlain,
  kDefault,
  kCancel
};

class Button final : public Control {
 public:
  /// With the number of an icon among the program's resources it shows that before its caption.
  Button(Container& parent, const Design& design, ButtonRole role = ButtonRole::kPlain, int picture_id = 0)
      : Control(&parent, Kind::kButton, design), picture_id_(picture_id), role_(role) {}

  [[nodiscard]] ButtonRole Role() const { return role_; }
  [[nodiscard]] int PictureId() const { return picture_id_; }

  /// The user's press; nothing when unreachable.
  void Press();

  Handler OnClick;

 private:
  int picture_id_;
  ButtonRole role_;
};

class CheckBox final : public Control {
 public:
  CheckBox(Container& parent, const Design& design) : Control(&parent, Kind::kCheckBox, design) {}

  /// 0 clear, 1 ticked, 2 greyed.
  [[nodiscard]] int Value() const { return value_; }
  [[nodiscard]] bool Ticked() const { return value_ == 1; }
  /// Fires OnClick when the value changes. Another value than 0, 1, 2 is error 380.
  base::Status SetValue(int value);
  /// SetValue(1) or SetValue(0), which cannot be refused.
  void SetTicked(bool ticked);

  /// The user's press: ticks a clear box, clears any other.
  void Press();

  Handler OnClick;

 private:
  int value_ = 0;
};

class OptionButton final : public Control {
 public:
  OptionButton(Container& parent, const Design& design) : Control(&parent, Kind::kOptionButton, design) {}

  [[nodiscard]] bool Selected() const { return selected_; }
  /// Selecting fires OnClick when it was not selected and clears the others of its container silently;
  /// clearing fires nothing.
  void SetSelected(bool selected);

  /// The user's choice by click or arrow key; fires like SetSelected(true).
  void Press();

  Handler OnClick;

 private:
  void Clear();

  bool selected_ = false;
};

}  // namespace qdix::ui
