// The base of all control models: name, place, caption, enabled and visible state, focus, and the one peer
// that mirrors the model on the screen. A model is complete without a peer. A peer contains no rules: it
// copies the model to the window and passes the user's actions to the model.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "ui/control_name.h"
#include "ui/event.h"

namespace qdix::ui {

/// Twips, the unit of some given positions: 1,440 to the inch, which has 96 pixels.
inline constexpr int kTwipsPerPixel = 15;

class Container;
class Control;
class Form;

/// Containers come first; IsContainer relies on it.
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
  /// A control that only one program has. That program's factory makes its peer.
  kOwn,
};

/// What changed in a model. The peer reads the new state from the model.
enum class Change : std::uint8_t {
  kCaption,
  kEnabled,
  kVisible,
  kValue,
  kItems,
  /// The range, and possibly the value with it.
  kRange,
  kColour,
  kFocus,
  kTextSelection,
  kWindowState,
  kRepaint,
  kBorder,
  kPlace,
  /// Position and size of the form's window on the screen.
  kBounds,
};

class ControlPeer {
 public:
  virtual void ControlChanged(Control& control, Change change) = 0;

 protected:
  ~ControlPeer() = default;
};

/// A rectangle in dialog units, relative to the tab page or form that the control is on. A frame does not
/// shift its contents.
struct Place {
  std::int16_t left = 0;
  std::int16_t top = 0;
  std::int16_t width = 0;
  std::int16_t height = 0;

  friend bool operator==(const Place&, const Place&) = default;
};

/// A colour as 0x00BBGGRR, or 0x80000000 plus the index of a system colour.
using Colour = std::uint32_t;
inline constexpr Colour kWindowBackground = 0x80000005U;
inline constexpr Colour kMenuBackground = 0x80000004U;
inline constexpr Colour kButtonFace = 0x8000000FU;
inline constexpr Colour kButtonText = 0x80000012U;

/// What a form designer shows for every control. Texts must be literals, because only their addresses are
/// kept; the caption is copied. Kept small: there is one per control.
struct Design {
  [[no_unique_address]] ControlName name;
  const char* caption = "";
  const char* tool_tip = "";
  Place place{};
  /// Letter that works with Alt, from the caption or from the label before the control; 0 for none. Not part
  /// of the caption.
  char access_key = 0;
  bool visible = true;
  bool enabled = true;
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] Kind GetKind() const { return kind_; }
  /// True for a form, tab strip, tab page or frame, which can be cast to Container.
  [[nodiscard]] bool IsContainer() const { return kind_ <= Kind::kFrame; }
  [[nodiscard]] std::string_view Name() const { return design_.name.Text(); }
  [[nodiscard]] std::string_view ToolTip() const { return design_.tool_tip; }
  [[nodiscard]] char AccessKey() const { return design_.access_key; }
  [[nodiscard]] const Place& GetPlace() const { return design_.place; }
  void SetPlace(const Place& place);
  /// The container that holds the control; null for the form.
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

  /// True if the control and every container above it are enabled.
  [[nodiscard]] bool EffectivelyEnabled() const;
  /// True if the user can reach the control: it and all its containers are enabled and visible, its tab page
  /// is open, and the form is loaded and not minimised.
  [[nodiscard]] bool Reachable() const;

  /// Moves the keyboard focus here from code, as the Tab key does: the control that has the focus is
  /// validated and may keep it. Does nothing if this control is unreachable.
  void SetFocus();
  [[nodiscard]] bool HasFocus() const;

  /// The user presses Enter on this control and no button of the window takes it.
  virtual void PressEnter() {}

  /// Sets the only peer; null detaches it. The peer must outlive its attachment.
  void AttachPeer(ControlPeer* peer) { peer_ = peer; }

  /// Runs before OnLostFocus when the focus moves to another control. Returning false keeps the focus here.
  /// An error goes to the dispatcher and counts as true.
  base::Callback<base::Result<bool>()> OnValidate;
  Handler OnGotFocus;
  Handler OnLostFocus;

 protected:
  Control(Container* parent, Kind kind, const Design& design);

  void Notify(Change change);
  /// Tells the peer, and the peers of everything inside, that the control was enabled or disabled.
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

/// A control that holds others. Its children are in tab order in the order of their construction.
class Container : public Control {
 public:
  [[nodiscard]] const std::vector<Control*>& Children() const { return children_; }

  /// Returns the control of this name at any depth, or null. The shipped programs have no names.
  [[nodiscard]] Control* Find(std::string_view name);

 protected:
  using Control::Control;

 private:
  friend class Control;
  void NotifyEnabled() override;

  std::vector<Control*> children_;
};

}  // namespace qdix::ui
