// The main window of a program: caption, state, focus, activation, closing.
#pragma once

#include <optional>

#include "ui/control.h"
#include "ui/menu.h"

namespace qdix::ui {

/// Pointer positions are in twips: 15 per pixel, whatever the resolution of the screen.

enum class WindowState : std::uint8_t {
  kNormal,
  kMinimised,
  /// Only for forms whose size the user can change.
  kMaximised
};

/// Inner size of a form in dialog units.
struct FormSize {
  std::int16_t width = 0;
  std::int16_t height = 0;
};

/// Position and outer size, frame included, of a window that is neither minimised nor maximised: in pixels,
/// from the upper left corner of the work area (the screen without the taskbar).
struct WindowBounds {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const WindowBounds&, const WindowBounds&) = default;
};

/// What a form needs from its window in addition to what every control needs.
class FormPeer {
 public:
  /// Shows the menu at the pointer, lets the user choose, and runs the choice.
  virtual void PopUp(MenuItem& menu) = 0;
  /// The form has unloaded: closes every open message box and menu and lets the program end.
  virtual void FormUnloaded() = 0;

 protected:
  ~FormPeer() = default;
};

class Form final : public Container {
 public:
  /// If the form has a smallest size, the user can resize the form, but not below that size.
  Form(EventDispatcher& events, const Design& design, FormSize smallest = {});

  [[nodiscard]] bool IsResizable() const { return smallest_.width != 0; }
  [[nodiscard]] FormSize Smallest() const { return smallest_; }
  /// The user or Windows changed the inner size of the window. Updates the form's place and runs OnResize if
  /// the size differs.
  void UserResized(FormSize size);

  /// Empty until the window has been placed.
  [[nodiscard]] const std::optional<WindowBounds>& Bounds() const { return bounds_; }
  /// Places the window. UserResized then sets the inner size.
  void SetBounds(const WindowBounds& bounds);
  /// The user or Windows placed the window. Only updates the model.
  void UserMoved(const WindowBounds& bounds) { bounds_ = bounds; }

  [[nodiscard]] EventDispatcher& Dispatcher() const { return events_; }
  void AttachFormPeer(FormPeer* peer) { form_peer_ = peer; }

  /// Shown or hidden; hidden at first. Showing fires OnActivate the first time and after each hiding. If the
  /// form is already shown, Show only brings it to the front.
  [[nodiscard]] bool Shown() const { return Visible(); }
  void Show();
  void Hide();
  /// Windows or another program showed or hid the window. Updates the model and fires OnActivate as Show
  /// does.
  void UserChangedVisible(bool visible);

  [[nodiscard]] WindowState State() const { return state_; }
  void SetState(WindowState state);
  /// The user minimised, maximised or restored the window. Only updates the model.
  void UserChangedState(WindowState state) { state_ = state; }

  /// The control with the keyboard, or null.
  [[nodiscard]] Control* Focused() const { return focused_; }
  /// Moves the focus: validates the control that has it, then fires its OnLostFocus and the new control's
  /// OnGotFocus. Null leaves no control with the focus; validation still runs. Returns false if `to` does not
  /// have the focus afterwards: it is unreachable, the other control keeps the focus, or a handler moved the
  /// focus elsewhere.
  bool MoveFocus(Control* to);

  /// Takes the focus from a control that has become unreachable, without validation.
  void DropUnreachableFocus();

  void PopUpMenu(MenuItem& menu);

  /// The user closes the window. Unloads the form unless OnQueryClose refuses.
  void Close();

  /// Fires OnUnload, stops the dispatcher and tells the peer. Later calls do nothing.
  void Unload();
  /// Like Unload, but also works while a message box opened by OnUnload holds up an earlier call. OnUnload
  /// then runs a second time and must not ask the user. For the end of the session: the process may be
  /// stopped at any moment.
  void UnloadAtOnce();
  [[nodiscard]] bool Unloaded() const { return unloaded_; }

  /// The pointer moved over the window, or the tray icon sent its callback: button, shift state, x and y in
  /// twips.
  void PointerMoved(int button, int shift, double x_twips, double y_twips);

  /// The user presses Esc and no button of the window takes it.
  void PressEscape();

  Handler OnActivate;
  Handler OnResize;
  Handler OnEscape;
  /// Returns whether the user may close the window now. If unbound, the user may.
  base::Callback<bool()> OnQueryClose;
  Handler OnUnload;
  base::Callback<base::Status(int, int, double, double)> OnMouseMove;

 private:
  [[nodiscard]] bool LeaveFocused();
  [[nodiscard]] bool Validates(Control& control);

  EventDispatcher& events_;
  FormPeer* form_peer_ = nullptr;
  Control* focused_ = nullptr;
  std::optional<WindowBounds> bounds_;
  FormSize smallest_;
  WindowState state_ = WindowState::kNormal;
  bool moving_focus_ = false;
  bool focus_set_by_handler_ = false;
  bool unloading_ = false;
  bool unloaded_ = false;
};

}  // namespace qdix::ui
