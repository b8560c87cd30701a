// The windows of the program: the hidden application window, the main window that it owns, and the controls.
// The constructor makes both windows, hidden. The controls of a tab page are made when the page is first
// shown (PeerMaker).
#pragma once

#include <optional>
#include <span>

#include "ui/application.h"
#include "ui/form.h"
#include "ui/timer.h"
#include "ui/win32/dialog_font.h"
#include "ui/win32/focus_keeper.h"
#include "ui/win32/form_bounds.h"
#include "ui/win32/form_keys.h"
#include "ui/win32/owned.h"
#include "ui/win32/peer_factory.h"
#include "ui/win32/peer_maker.h"
#include "ui/win32/peer_table.h"
#include "ui/win32/subclass.h"
#include "ui/win32/tool_tips.h"
#include "ui/win32/window_class.h"
#include "ui/win32/window_timers.h"

namespace qdix::ui::win32 {

class FormWindow final : private FormPeer, private ControlPeer, private MessageHandler {
 public:
  /// `icon_id` is the resource of the main window's icon; without that resource the window has the standard
  /// icon. Application, form and timers must outlive this object. The form's place gives the inner size; the
  /// window is centred in the work area. `make_peer` must know every kind of control on the form.
  FormWindow(HINSTANCE instance, int icon_id, Application& application, Form& form,
             std::span<Timer* const> timers, PeerFactory make_peer);
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow();

  /// False if Windows could not make one of the windows that are needed now. The program cannot run then.
  [[nodiscard]] bool Complete() const;

  [[nodiscard]] HWND MainWindow() const { return main_.get(); }
  [[nodiscard]] HWND ApplicationWindow() const { return application_window_.get(); }
  /// Icon in the size for captions and the notification area. Valid as long as this object lives.
  [[nodiscard]] HICON SmallIcon() const { return small_icon_ != nullptr ? small_icon_.get() : icon_; }

  /// Sets how the caller wants the window shown (SW_...): minimised or, if its size can be changed,
  /// maximised. Applies to the first Show; a form that is minimised stays minimised. Needed because Windows
  /// applies the caller's show command only to windows without an owner.
  void SetStartCommand(int show_command) { start_command_ = show_command; }

  /// The form has unloaded: open message boxes and the message loop must end. No handler runs any more.
  base::Callback<void()> OnUnloaded;
  /// The Windows session ends now. If unbound, the form unloads.
  base::Callback<void()> OnSessionEnding;
  /// The Windows session is about to end. Returning false keeps it going. If unbound, the session may end.
  base::Callback<bool()> OnQueryEndSession;
  /// The window was activated while minimised, which does not restore it. Receives the thread that was active
  /// before; 0 if there was none, and always 0 on versions of Windows that check only the program's own
  /// windows.
  base::Callback<void(std::uint32_t)> OnActivatedMinimised;
  /// The taskbar was restarted and has lost the icons in its notification area.
  base::Callback<void()> OnTaskbarCreated;
  /// Files were dropped on the window after it was set up to accept them. Receives their HDROP, which the
  /// receiver must free.
  base::Callback<void(WPARAM)> OnFilesDropped;

 private:
  void PopUp(MenuItem& menu) override;
  void FormUnloaded() override;
  void ControlChanged(Control& control, Change change) override;
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

  void TitleChanged();

  void ShowOrHide();
  void TakeWindowState();
  /// Another program may have shown, hidden, minimised or restored the window: updates the form.
  void FollowWindow();
  void PointerMoved(WPARAM buttons, LPARAM point);
  void EndSession();
  void ForwardToControls(UINT message, WPARAM wparam, LPARAM lparam) const;
  void KeepApplicationWindowBehind() const;
  [[nodiscard]] LRESULT DefaultButtonNumber() const;
  void PressCancelButton();
  void PressEnterInControl();
  void MoveDialogFocus(WPARAM target, bool target_is_window) const;
  std::optional<LRESULT> HandleKeyboard(UINT message, WPARAM wparam, LPARAM lparam);
  std::optional<LRESULT> HandleLife(UINT message, WPARAM wparam, LPARAM lparam);

  /// Registers the window classes of tabs, sliders and tool tips. Must run before the first such window is
  /// made.
  struct CommonControls {
    CommonControls();
  };

  Application& application_;
  Form& form_;
  CommonControls common_controls_;
  HICON icon_;
  OwnedIcon small_icon_;
  UINT taskbar_created_message_;
  int start_command_ = SW_SHOWDEFAULT;
  bool menu_is_open_ = false;

  // In order of construction. Destroyed in reverse: controls before their window, windows before their class
  // and font.
  WindowClass application_class_;
  WindowClass main_class_;
  WindowClass page_class_;
  WindowClass drawing_class_;
  DialogFont font_;
  OwnedWindow application_window_;
  OwnedWindow main_;
  Subclass hook_;
  ToolTips tips_;
  PeerTable peers_;
  FormKeys keys_;
  FormBounds bounds_;
  FocusKeeper focus_;
  PeerMaker maker_;
  PeerContext context_;
  WindowTimers timers_;
};

}  // namespace qdix::ui::win32
