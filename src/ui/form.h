// The window of the program: caption, state, focus, activation, closing.
#pragma once

#include "ui/control.h"
#include "ui/menu.h"

namespace qdix::ui {

/// Positions of the pointer are given in twips, 15 of them a pixel whatever the screen's resolution.
inline constexpr double kTwipsPerPixel = 15;

enum class WindowState : std::uint8_t {
  kNormal,
  kMinimised
};

/// What a form asks of the window that shows it, beyond what a control does.
class FormPeer {
 public:
  virtual ~FormPeer() = default;
  /// Shows the menu at the pointer, lets the user choose, and runs the choice.
  virtual void PopUp(MenuItem& menu) = 0;
  /// The form has unloaded: dismiss every open box and menu and let the program end.
  virtual void FormUnloaded() = 0;
};

class Form final : public Container {
 public:
  Form(EventDispatcher& events, const Design& design);

  [[nodiscard]] EventDispatcher& Dispatcher() const { return events_; }
  void AttachFormPeer(FormPeer* peer) { form_peer_ = peer; }

  /// Shown or hidden; hidden at first. Showing fires OnActivate, at the first time and after each hiding; a
  /// form that is shown already only comes to the front.
  [[nodiscard]] bool Shown() const { return Visible(); }
  void Show();
  void Hide();

  [[nodiscard]] WindowState State() const { return state_; }
  void SetState(WindowState state);
  /// The user minimised or restored the window; copied into the model.
  void UserChangedState(WindowState state) { state_ = state; }

  /// The control with the keyboard, or null.
  [[nodiscard]] Control* Focused() const { return focused_; }
  /// Moves the focus: validates the control left, then OnLostFocus there and OnGotFocus here. Null takes the
  /// focus away from all controls (validated as well). False when the focus is not there in the end: `to` is
  /// unreachable, the control left keeps it, or one of these handlers moved it on.
  bool MoveFocus(Control* to);

  /// Takes the focus from a control that can no longer be reached, without asking it.
  void DropUnreachableFocus();

  void PopUpMenu(MenuItem& menu);

  /// The user closes the window: unloads, unless OnQueryClose refuses.
  void Close();

  /// Fires OnUnload once, stops the dispatcher and tells the peer. Later calls do nothing.
  void Unload();
  [[nodiscard]] bool Unloaded() const { return unloaded_; }

  /// The pointer moved over the window, or the tray icon called back: button, shift state, x and y in twips.
  void PointerMoved(int button, int shift, double x_twips, double y_twips);

  Handler OnActivate;
  /// Answers whether a user's wish to close the window is followed; unbound, it is.
  base::Callback<bool()> OnQueryClose;
  Handler OnUnload;
  base::Callback<base::Status(int, int, double, double)> OnMouseMove;

 private:
  [[nodiscard]] bool LeaveFocused();
  [[nodiscard]] bool Validates(Control& control);

  EventDispatcher& events_;
  FormPeer* form_peer_ = nullptr;
  Control* focused_ = nullptr;
  WindowState state_ = WindowState::kNormal;
  bool moving_focus_ = false;
  bool focus_set_by_handler_ = false;
  bool unloading_ = false;
  bool unloaded_ = false;
};

}  // namespace qdix::ui
