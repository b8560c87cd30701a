// The windows of the program: the hidden application window, the main window that it owns, and the controls
// on it. Both main windows exist, hidden, from the construction on; the controls of a tab page come when the
// page is first seen (PeerMaker).
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
  /// The icon of the main window is that of the resource `icon_id`, or the system's where there is none.
  /// Application, form and timers must outlive this object. The place of the form gives its inner size; the
  /// window stands in the middle of the screen. `make_peer` knows every kind of control that the form has.
  FormWindow(HINSTANCE instance, int icon_id, Application& application, Form& form,
             std::span<Timer* const> timers, PeerFactory make_peer);
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;
  ~FormWindow() override;

  /// False where the system could not make one of the windows that are needed now: the program cannot run.
  [[nodiscard]] bool Complete() const;

  [[nodiscard]] HWND MainWindow() const { return main_.get(); }
  [[nodiscard]] HWND ApplicationWindow() const { return application_window_.get(); }
  /// The icon in the size of captions and of the notification area, for as long as this object lives.
  [[nodiscard]] HICON SmallIcon() const { return small_icon_ != nullptr ? small_icon_.get() : icon_; }

  /// How whoever started the program wants the window shown (SW_...): minimised or, where its size can be
  /// changed, maximised. The first Show takes it, unless the form is to be minimised anyway. The system
  /// itself follows such a wish only for windows without an owner.
  void SetStartCommand(int show_command) { start_command_ = show_command; }

  /// The form has unloaded: open boxes and the message loop must end. No handler runs any more.
  base::Callback<void()> OnUnloaded;
  /// The Windows session ends now; unbound, the form unloads.
  base::Callback<void()> OnSessionEnding;
  /// The Windows session is about to end: false keeps it going. Unbound, the session may end.
  base::Callback<bool()> OnQueryEndSession;
  /// The window was activated while it is minimised, which does not restore it. Told the thread that was
  /// active before; 0 if there was none, and always by systems that look only among the own windows.
  base::Callback<void(std::uint32_t)> OnActivatedMinimised;
  /// The taskbar was started anew and has lost the icons in its notification area.
  base::Callback<void()> OnTaskbarCreated;
  /// Files were dropped on the window, which somebody made ready for it. The word is their HDROP, which the
  /// receiver frees.
  base::Callback<void(WPARAM)> OnFilesDropped;

 private:
  void PopUp(MenuItem& menu) override;
  void FormUnloaded() override;
  void ControlChanged(Control& control, Change change) override;
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

  void TitleChanged();

  void ShowOrHide();
  void TakeWindowState();
  /// Whoever showed, hid, minimised or restored the window, another program perhaps: the form follows.
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

  /// Makes the classes of tabs, sliders and tool tips known; before the first of their windows.
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

  // In the order in which they are made; they go in the opposite order, controls before the window they stand
  // on, windows before their class and font.
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
