// The base of all control models: name, place, caption, enabled, visible, focus, and the one peer that
// mirrors the model on a screen. A model is complete without a peer. No rule lives in a peer: it copies model
// to window, and hands the user's actions to the model.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "ui/event.h"

namespace qdix::ui {

class Container;
class Control;
class Form;

/// The containers come first.
enum class Kind : std::uint8_t {
  kForm,
  kTabStrip,
  kTabPage,
  kFrame,
  kLabel,
  kButton,
  kCheckBox,
  kOptionButton,
  kTextBox,
  kListBox,
  kDropDownList,
  kDropDownCombo,
  kVerticalScrollBar,
  kSlider,
  kDrawing,
  kPicture,
  /// A control of one program alone, whose own factory makes its peer.
  kOwn,
};

/// What changed in a model. The peer reads the new state from the model.
enum class Change : std::uint8_t {
  kCaption,
  kEnabled,
  kVisible,
  kValue,
  kItems,
  /// The range, and with it perhaps the value.
  kRange,
  kColour,
  kFocus,
  kTextSelection,
  kWindowState,
  kRepaint,
  kBorder,
  kPlace,
  /// The place and size of the form's window on the screen.
  kBounds,
};

class ControlPeer {
 public:
  virtual ~ControlPeer() = default;
  virtual void ControlChanged(Control& control, Change change) = 0;
};

/// A rectangle in dialog units, relative to the tab page (or form) the control stands on; frames do not move
/// their contents.
struct Place {
  std::int16_t left = 0;
  std::int16_t top = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;

  friend bool operator==(const Place&, const Place&) = default;
};

/// A colour word: blue-green-red, or 0x80000000 + number of a system colour.
using Colour = std::uint32_t;
inline constexpr Colour kWindowBackground = 0x80000005U;
inline constexpr Colour kMenuBackground = 0x80000004U;
inline constexpr Colour kButtonFace = 0x8000000FU;
inline constexpr Colour kButtonText = 0x80000012U;

/// What a form designer shows of every control. Texts must be literals (they are kept by reference), but for
/// the caption, which is copied. Every control of the program has one that is put together where it is made:
/// the fewer bytes, the smaller the program.
struct Design {
  const char* name;
  const char* caption = "";
  /// Letter of the caption (or of a label that stands before the control) that works with Alt; 0 for none.
  /// Never part of the caption.
  char access_key = 0;
  const char* tool_tip = "";
  Place place{};
  bool visible = true;
  bool enabled = true;
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] Kind GetKind() const { return kind_; }
  /// Form, tab strip, tab page and frame; safe to cast to Container.
  [[nodiscard]] bool IsContainer() const { return kind_ <= Kind::kFrame; }
  [[nodiscard]] std::string_view Name() const { return design_.name; }
  [[nodiscard]] std::string_view ToolTip() const { return design_.tool_tip; }
  [[nodiscard]] char AccessKey() const { return design_.access_key; }
  [[nodiscard]] const Place& GetPlace() const { return design_.place; }
  void SetPlace(const Place& place);
  /// The container the control stands in; null for the form.
  [[nodiscard]] Container* Parent() const { return parent_; }
  [[nodiscard]] Form& GetForm() const;

  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] Colour BackColour() const { return back_colour_; }
  void SetBackColour(Colour colour);

  /// Enabled, and so is every container above.
  [[nodiscard]] bool EffectivelyEnabled() const;
  /// A hand can reach it: enabled and visible, and so is everything above it, on the tab page that is open,
  /// in a shown form.
  [[nodiscard]] bool Reachable() const;

  /// Moves the keyboard here from code, as a user's Tab does: the control left is validated and may keep the
  /// focus. An unreachable control takes no focus.
  void SetFocus();
  [[nodiscard]] bool HasFocus() const;

  /// The user's Enter on this control, where no button of the window takes it.
  virtual void PressEnter() {}

  /// One peer or none. The peer must outlive the model's use of it or be detached with null.
  void AttachPeer(ControlPeer* peer) { peer_ = peer; }

  /// Runs when the focus leaves for another control, before OnLostFocus; answering false keeps the focus
  /// here. An error goes to the dispatcher and counts as true.
  base::Callback<base::Result<bool>()> OnValidate;
  Handler OnGotFocus;
  Handler OnLostFocus;

 protected:
  Control(Container* parent, Kind kind, const Design& design);

  void Notify(Change change);
  /// Tells the peer, and those of everything inside, that the control works or does not.
  virtual void NotifyEnabled();
  [[nodiscard]] EventDispatcher& Events() const;

 private:
  friend class Container;
  friend class Form;
  Container* parent_;
  ControlPeer* peer_ = nullptr;
  Design design_;
  std::string caption_;
  Colour back_colour_;
  Kind kind_;
  bool enabled_;
  bool visible_;
};

/// A control that others stand in. The order of construction of its children is the tab order.
class Container : public Control {
 public:
  [[nodiscard]] const std::vector<Control*>& Children() const { return children_; }

  /// The control of this name at any depth, or null.
  [[nodiscard]] Control* Find(std::string_view name);

 protected:
  using Control::Control;

 private:
  friend class Control;
  void NotifyEnabled() override;

  std::vector<Control*> children_;
};

}  // namespace qdix::ui
