// Describes a window or tab as text, one control per line in tab order, to compare a whole screen with its
// expected layout.
#pragma once

#include <string>

#include "ui/access_key.h"
#include "ui/simple_controls.h"

namespace qdix::tests {

inline std::string KindName(const ui::Control& control) {
  switch (control.GetKind()) {
    case ui::Kind::kFrame:
      return "Frame";
    case ui::Kind::kLabel:
      return "Label";
    case ui::Kind::kButton:
      return "Button";
    case ui::Kind::kCheckBox:
      return "CheckBox";
    case ui::Kind::kOptionButton:
      return "Option";
    case ui::Kind::kTextBox:
      return "TextBox";
    case ui::Kind::kListBox:
      return "ListBox";
    case ui::Kind::kDropDownList:
      return "DropDownList";
    case ui::Kind::kVerticalScrollBar:
      return "ScrollBar";
    case ui::Kind::kSlider:
      return "Slider";
    case ui::Kind::kDrawing:
      return "Drawing";
    case ui::Kind::kPicture:
      return "Picture";
    case ui::Kind::kOwn:
      return "Own";
    default:
      return "unexpected kind";
  }
}

/// Returns what distinguishes a button or picture from others of its kind.
inline std::string Traits(const ui::Control& control) {
  std::string traits;
  if (control.GetKind() == ui::Kind::kButton) {
    const auto& button = static_cast<const ui::Button&>(control);
    if (button.Role() == ui::ButtonRole::kDefault) traits += " default";
    if (button.Role() == ui::ButtonRole::kCancel) traits += " cancel";
    if (button.PictureId() != 0) traits += " picture=" + std::to_string(button.PictureId());
  }
  if (control.GetKind() == ui::Kind::kPicture) {
    traits += " picture=" + std::to_string(static_cast<const ui::Picture&>(control).ResourceId());
  }
  return traits;
}

/// Returns "Kind name 'caption' (tip) traits", with the access key as "&" in the caption. An empty tip is
/// left out.
inline std::string ControlText(const ui::Control& control) {
  std::string text = KindName(control) + " " + std::string(control.Name());
  text += " '" + ui::MarkAccessKey(control.Caption(), control.AccessKey()) + "'";
  if (!control.ToolTip().empty()) text += " (" + std::string(control.ToolTip()) + ")";
  text += Traits(control);
  if (!control.Enabled()) text += " disabled";
  if (!control.Visible()) text += " hidden";
  return text;
}

/// Describes every control of a container at any depth; the contents of a frame are indented below it.
inline std::string ScreenText(const ui::Container& container, const std::string& indent = "") {
  std::string text;
  for (const ui::Control* const child : container.Children()) {
    text += indent + ControlText(*child) + "\n";
    if (child->IsContainer()) text += ScreenText(static_cast<const ui::Container&>(*child), indent + "  ");
  }
  return text;
}

}  // namespace qdix::tests
