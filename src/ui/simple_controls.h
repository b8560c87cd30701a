// The simple controls: label, frame, button, check box, option button, picture.
#pragma once

#include "ui/control.h"

namespace qdix::ui {

class Label final : public Control {
 public:
  Label(Container& parent, const Design& design) : Control(&parent, Kind::kLabel, design) {}

  /// Paints the label at once instead of at the next paint message.
  void Refresh() { Notify(Change::kRepaint); }
};

/// A group box. The option buttons in one frame form a group. Disabling the frame disables its contents.
class Frame final : public Container {
 public:
  Frame(Container& parent, const Design& design) : Container(&parent, Kind::kFrame, design) {}
};

/// A picture from the program's resources. Shows nothing if the resource does not exist.
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
  /// `picture_id` is the resource number of an icon to show before the caption; 0 for none.
  Button(Container& parent, const Design& design, ButtonRole role = ButtonRole::kPlain, int picture_id = 0)
      : Control(&parent, Kind::kButton, design), picture_id_(picture_id), role_(role) {}

  [[nodiscard]] ButtonRole Role() const { return role_; }
  [[nodiscard]] int PictureId() const { return picture_id_; }

  /// The user presses the button. Does nothing if it is unreachable.
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
  /// Fires OnClick if the value changes. A value other than 0, 1 or 2 returns error 380.
  base::Status SetValue(int value);
  /// Calls SetValue with 1 or 0, which is never refused.
  void SetTicked(bool ticked);

  /// The user presses the box: ticks it if clear, otherwise clears it.
  void Press();

  Handler OnClick;

 private:
  int value_ = 0;
};

class OptionButton final : public Control {
 public:
  OptionButton(Container& parent, const Design& design) : Control(&parent, Kind::kOptionButton, design) {}

  [[nodiscard]] bool Selected() const { return selected_; }
  /// Selecting the option clears the others in its container silently and fires OnClick if it was not
  /// selected. Clearing it fires nothing.
  void SetSelected(bool selected);

  /// The user chooses the option by click or arrow key. Fires like SetSelected(true).
  void Press();

  Handler OnClick;

 private:
  void Clear();

  bool selected_ = false;
};

}  // namespace qdix::ui
