// The window of the program: caption, state, focus, activation, closing.
#pragma once

#include <optional>

#include "ui/control.h"
#include "ui/menu.h"

namespace qdix::ui {

/// Positions of the pointer are given in twips, 15 of them a pixel whatever the screen's resolution.
inline constexpr double kTwipsPerPixel = 15;

enum class WindowState : std::uint8_t {
  kNormal,
  kMinimised,
  /// Forms whose size the user can change.
  kMaximised
};

/// Inner size of a form in dialog units.
struct FormSize {
  std::int16_t width = 0;
  std::int16_t height = 0;
};

/// Where a window with its frame stands while it is neither minimised nor maximised: in pixels from the upper
/// left corner of what the taskbar leaves of the screen.
struct WindowBounds {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  friend bool operator==(const WindowBounds&, const WindowBounds&) = default;
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
  /// The user can change the size of a form that has a smallest size, down to that.
  Form(EventDispatcher& events, const Design& design, FormSize smallest = {});

  [[nodiscard]] bool IsResizable() const { return smallest_.width != 0; }
  [[nodiscard]] FormSize Smallest() const { return smallest_; }
  /// The user gave the window another inner size, or the system did: the place of the form follows, and
  /// OnResize runs when it differs.
  void UserResized(FormSize size);

  /// Nothing until a window was placed.
  [[nodiscard]] const std::optional<WindowBounds>& Bounds() const { return bounds_; }
  /// Places the window. Its inner size follows from that, by UserResized.
  void SetBounds(const WindowBounds& bounds);
  /// The window was placed by the user or the system; copied into the model.
  void UserMoved(const WindowBounds& bounds) { bounds_ = bounds; }

  [[nodiscard]] EventDispatcher& Dispatcher() const { return events_; }
  void AttachFormPeer(FormPeer* peer) { form_peer_ = peer; }

  /// Shown or hidden; hidden at first. Showing fires OnActivate, at the first time and after each hiding; a
  /// form that is shown already only comes to the front.
  [[nodiscard]] bool Shown() const { return Visible(); }
  void Show();
  void Hide();
  /// The system or another program showed or hid the window; copied into the model. Fires OnActivate as Show
  /// does.
  void UserChangedVisible(bool visible);

  [[nodiscard]] WindowState State() const { return state_; }
  void SetState(WindowState state);
  /// The user minimised, maximised or restored the window; copied into the model.
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
  /// The same, also while a box of OnUnload holds up an earlier call: then OnUnload runs a second time and
  /// must not ask. For the end of the session, after which the process may stop at any moment.
  void UnloadAtOnce();
  [[nodiscard]] bool Unloaded() const { return unloaded_; }

  /// The pointer moved over the window, or the tray icon called back: button, shift state, x and y in twips.
  void PointerMoved(int button, int shift, double x_twips, double y_twips);

  /// Esc, where no button of the window takes it.
  void PressEscape();

  Handler OnActivate;
  Handler OnResize;
  Handler OnEscape;
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
  std::optional<WindowBounds> bounds_;
  FormSize smallest_;
  WindowState state_ = WindowState::kNormal;
  bool moving_focus_ = false;
  bool focus_set_by_handler_ = false;
  bool unloading_ = false;
  bool unloaded_ = false;
};

}  // namespace qdix::ui
