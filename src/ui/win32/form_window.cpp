#include "ui/win32/form_window.h"

#include <commctrl.h>

#include <utility>

#include "ui/win32/popup_menu.h"
#include "ui/win32/reflection.h"

namespace qdix::ui::win32 {

namespace {

/// Posted on activation, because the window must not be changed during an activation. Above the message
/// numbers that dialogs use.
constexpr UINT kActivatedMinimisedMessage = WM_USER + 0x102;

HICON LoadMainIcon(HINSTANCE instance, int icon_id) {
  HICON const own = LoadIconA(instance, MAKEINTRESOURCEA(icon_id));
  return own != nullptr ? own : LoadIconA(nullptr, MAKEINTRESOURCEA(32512));  // the standard application icon
}

/// Not LR_SHARED: Windows 95 returns the first shared icon of a name, whatever its size. Null if there is no
/// such resource.
OwnedIcon LoadSmallIcon(HINSTANCE instance, int icon_id) {
  return OwnedIcon(static_cast<HICON>(LoadImageA(instance, MAKEINTRESOURCEA(icon_id), IMAGE_ICON,
                                                 GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON),
                                                 LR_DEFAULTCOLOR)));
}

OwnedWindow MakeApplicationWindow(HINSTANCE instance, const Application& application) {
  return OwnedWindow(CreateWindowExA(0, kApplicationWindowClass, application.Title().c_str(), WS_POPUP, 0, 0,
                                     0, 0, nullptr, nullptr, instance, nullptr));
}

OwnedWindow MakeMainWindow(HINSTANCE instance, HWND owner, const Form& form, const DialogFont& font) {
  const Place& inner = form.GetPlace();
  const SIZE size = OuterSize(form, font, {inner.width, inner.height});
  RECT work{};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
  const LONG left = work.left + (work.right - work.left - size.cx) / 2;
  const LONG top = work.top + (work.bottom - work.top - size.cy) / 2;
  return OwnedWindow(CreateWindowExA(kMainExtendedStyle, kMainWindowClass, form.Caption().c_str(),
                                     MainStyleOf(form), left, top < work.top ? work.top : top, size.cx,
                                     size.cy, owner, nullptr, instance, nullptr));
}

bool AsksForMinimised(int show_command) {
  return show_command == SW_SHOWMINIMIZED || show_command == SW_MINIMIZE ||
         show_command == SW_SHOWMINNOACTIVE;
}

void ShowMinimised(HWND window, bool restores_to_maximised) {
  if (!restores_to_maximised) {
    ShowWindow(window, SW_SHOWMINNOACTIVE);
    return;
  }
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(window, &placement);
  placement.showCmd = SW_SHOWMINIMIZED;  // the flag has an effect only with this command
  placement.flags = WPF_RESTORETOMAXIMIZED;
  SetWindowPlacement(window, &placement);
}

/// Mouse buttons and modifier keys, as the bits that OnMouseMove receives.
int ButtonBits(WPARAM buttons) {
  return ((buttons & MK_LBUTTON) != 0 ? 1 : 0) | ((buttons & MK_RBUTTON) != 0 ? 2 : 0) |
         ((buttons & MK_MBUTTON) != 0 ? 4 : 0);
}

int ShiftBits(WPARAM buttons) {
  return ((buttons & MK_SHIFT) != 0 ? 1 : 0) | ((buttons & MK_CONTROL) != 0 ? 2 : 0) |
         (GetKeyState(VK_MENU) < 0 ? 4 : 0);
}

}  // namespace

FormWindow::CommonControls::CommonControls() { InitCommonControls(); }

FormWindow::FormWindow(HINSTANCE instance, int icon_id, Application& application, Form& form,
                       std::span<Timer* const> timers, PeerFactory make_peer)
    : application_(application),
      form_(form),
      icon_(LoadMainIcon(instance, icon_id)),
      small_icon_(LoadSmallIcon(instance, icon_id)),
      taskbar_created_message_(RegisterWindowMessageA("TaskbarCreated")),
      application_class_(instance, kApplicationWindowClass, {.icon = icon_}),
      main_class_(instance, kMainWindowClass, {.background = FaceBackground(), .icon = icon_}),
      page_class_(instance, kPageWindowClass, {.background = FaceBackground()}),
      drawing_class_(instance, kDrawingWindowClass, {}),
      application_window_(MakeApplicationWindow(instance, application)),
      main_(MakeMainWindow(instance, application_window_.get(), form, font_)),
      hook_(main_.get(), *this),
      tips_(instance, main_.get()),
      keys_(form),
      bounds_(main_.get(), form, font_),
      focus_(form, peers_),
      maker_(form, main_.get(), make_peer, context_),
      context_{instance, font_, keys_, peers_, focus_, tips_, maker_},
      timers_(main_.get(), timers) {
  focus_.SetMainWindow(main_.get());
  SendMessageA(main_.get(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(SmallIcon()));
  maker_.MakeDue();
  form_.AttachPeer(this);
  form_.AttachFormPeer(this);
  application_.OnTitleChanged = base::Callback<void()>::To<&FormWindow::TitleChanged>(*this);
}

FormWindow::~FormWindow() {
  application_.OnTitleChanged = {};
  form_.AttachFormPeer(nullptr);
  form_.AttachPeer(nullptr);
}

bool FormWindow::Complete() const {
  return main_ != nullptr && application_window_ != nullptr && maker_.Complete();
}

void FormWindow::TitleChanged() { SetWindowTextA(application_window_.get(), application_.Title().c_str()); }

void FormWindow::ControlChanged(Control& /*control*/, Change change) {
  switch (change) {
    case Change::kCaption:
      SetWindowTextA(main_.get(), form_.Caption().c_str());
      break;
    case Change::kVisible:
      ShowOrHide();
      break;
    case Change::kWindowState:
      TakeWindowState();
      break;
    case Change::kBounds:
      bounds_.Apply();
      break;
    case Change::kEnabled:
      EnableWindow(main_.get(), form_.Enabled() ? TRUE : FALSE);
      break;
    default:
      break;
  }
}

void FormWindow::ShowOrHide() {
  if (!form_.Shown()) {
    ShowWindow(main_.get(), SW_HIDE);
    return;
  }
  maker_.MakeDue();
  const int start_command = std::exchange(start_command_, SW_SHOWDEFAULT);
  if (form_.State() == WindowState::kMinimised || AsksForMinimised(start_command)) {
    ShowMinimised(main_.get(), form_.State() == WindowState::kMaximised);
    return;
  }
  const bool maximise =
      form_.State() == WindowState::kMaximised || (start_command == SW_SHOWMAXIMIZED && form_.IsResizable());
  const int shown = IsIconic(main_.get()) != 0 ? SW_RESTORE : SW_SHOW;
  ShowWindow(main_.get(), maximise ? SW_SHOWMAXIMIZED : shown);
  SetForegroundWindow(main_.get());
}

/// Ignores a hidden window: it takes its state when it is shown.
void FormWindow::TakeWindowState() {
  if (!form_.Shown()) return;
  if (form_.State() == WindowState::kMinimised) {
    ShowWindow(main_.get(), SW_MINIMIZE);
    return;
  }
  ShowWindow(main_.get(), form_.State() == WindowState::kMaximised ? SW_SHOWMAXIMIZED : SW_RESTORE);
  SetForegroundWindow(main_.get());
}

void FormWindow::PopUp(MenuItem& menu) {
  if (menu_is_open_) return;  // Windows shows one menu at a time
  menu_is_open_ = true;
  MenuItem* chosen = nullptr;
  {
    const PopUpMenu native(menu);
    chosen = native.Track(main_.get());
  }
  menu_is_open_ = false;
  if (chosen != nullptr) chosen->Choose();
}

/// Only hides the window. This object destroys the windows later: a native control may be in the middle of
/// its own work further up the call stack.
void FormWindow::FormUnloaded() {
  ShowWindow(main_.get(), SW_HIDE);
  if (OnUnloaded) OnUnloaded();
  SendMessageA(main_.get(), WM_CANCELMODE, 0, 0);  // closes an open menu; Windows 95 has no EndMenu
  PostMessageA(main_.get(), WM_NULL, 0, 0);        // wakes a waiting message loop
}

LRESULT FormWindow::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == taskbar_created_message_ && message != 0) {
    if (OnTaskbarCreated) OnTaskbarCreated();
    return 0;
  }
  std::optional<LRESULT> answer = ReflectToPeer(peers_, message, wparam, lparam);
  if (!answer.has_value()) answer = HandleKeyboard(message, wparam, lparam);
  if (!answer.has_value()) answer = HandleLife(message, wparam, lparam);
  return answer.has_value() ? *answer : hook_.Default(message, wparam, lparam);
}

std::optional<LRESULT> FormWindow::HandleKeyboard(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_SETFOCUS:
      focus_.ArrivedAtMain();
      return 0;
    case FocusKeeper::kRefusalSettledMessage:
      focus_.OnRefusalSettled();
      return 0;
    case DM_GETDEFID:
      return DefaultButtonNumber();
    case DM_SETDEFID:
      return 1;  // each button peer draws the default border itself
    case WM_NEXTDLGCTL:
      MoveDialogFocus(wparam, LOWORD(lparam) != 0);
      return 0;
    case WM_COMMAND:
      if (LOWORD(wparam) == IDCANCEL) PressCancelButton();
      if (LOWORD(wparam) == IDOK) PressEnterInControl();
      return 0;
    case WM_GETDLGCODE:
      return FormKeys::DialogCode(lparam);
    case WM_KEYDOWN:
      if (FormKeys::IsTabSwitch(wparam)) keys_.SwitchTab(wparam);
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormWindow::HandleLife(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_TIMER:
      timers_.Elapsed(wparam);
      return 0;
    case WM_MOUSEMOVE:
      PointerMoved(wparam, lparam);
      return 0;
    case WM_SIZE:
      FollowWindow();
      bounds_.Resized(lparam);
      return 0;
    case WM_WINDOWPOSCHANGED:
      if ((reinterpret_cast<const WINDOWPOS*>(lparam)->flags & SWP_SHOWWINDOW) != 0) maker_.MakeDue();
      KeepApplicationWindowBehind();
      bounds_.Moved();
      FollowWindow();
      return std::nullopt;
    case WM_GETMINMAXINFO:
      bounds_.Limit(*reinterpret_cast<MINMAXINFO*>(lparam));
      return std::nullopt;
    case WM_DISPLAYCHANGE:
    case WM_SYSCOLORCHANGE:
      ForwardToControls(message, wparam, lparam);
      return 0;
    case WM_ACTIVATEAPP:
      if (wparam != FALSE && IsIconic(main_.get()) != 0) {
        PostMessageA(main_.get(), kActivatedMinimisedMessage, 0, lparam);
      }
      return std::nullopt;
    case kActivatedMinimisedMessage:
      if (OnActivatedMinimised) OnActivatedMinimised(static_cast<std::uint32_t>(lparam));
      return 0;
    case WM_QUERYENDSESSION:
      return !OnQueryEndSession || OnQueryEndSession() ? TRUE : FALSE;
    case WM_ENDSESSION:
      if (wparam != FALSE) EndSession();
      return 0;
    case WM_DROPFILES:
      if (OnFilesDropped) OnFilesDropped(wparam);
      return 0;
    case WM_CLOSE:
      form_.Close();
      return 0;
    default:
      return std::nullopt;
  }
}

/// Another copy of the program expects the main window directly before the application window in the Z order.
void FormWindow::KeepApplicationWindowBehind() const {
  if (GetWindow(application_window_.get(), GW_HWNDPREV) == main_.get()) return;
  SetWindowPos(application_window_.get(), main_.get(), 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER | SWP_NOSENDCHANGING);
}

/// Ignores the state of a hidden window: it may differ from the form's, which the window takes when it is
/// shown.
void FormWindow::FollowWindow() {
  const bool shown = IsWindowVisible(main_.get()) != 0;
  if (shown) {
    const WindowState restored = IsZoomed(main_.get()) != 0 ? WindowState::kMaximised : WindowState::kNormal;
    form_.UserChangedState(IsIconic(main_.get()) != 0 ? WindowState::kMinimised : restored);
  }
  form_.UserChangedVisible(shown);
}

/// Also receives the callback of the tray icon, whose lParam carries a number instead of a position.
void FormWindow::PointerMoved(WPARAM buttons, LPARAM point) {
  const auto x_px = static_cast<short>(LOWORD(point));
  const auto y_px = static_cast<short>(HIWORD(point));
  form_.PointerMoved(ButtonBits(buttons), ShiftBits(buttons), x_px * kTwipsPerPixel, y_px * kTwipsPerPixel);
}

void FormWindow::EndSession() {
  if (OnSessionEnding) {
    OnSessionEnding();
  } else {
    form_.Unload();
  }
}

void FormWindow::ForwardToControls(UINT message, WPARAM wparam, LPARAM lparam) const {
  for (const std::unique_ptr<NativeControl>& peer : peers_.All()) {
    if (peer != nullptr) SendMessageA(peer->Window(), message, wparam, lparam);
  }
  InvalidateRect(main_.get(), nullptr, TRUE);
}

LRESULT FormWindow::DefaultButtonNumber() const {
  const Button* const button = keys_.ReachableButton(ButtonRole::kDefault);
  const NativeControl* const peer = button == nullptr ? nullptr : peers_.ByModel(*button);
  return peer == nullptr ? 0 : MAKELONG(GetDlgCtrlID(peer->Window()), DC_HASDEFID);
}

void FormWindow::PressCancelButton() {
  Button* const button = keys_.ReachableButton(ButtonRole::kCancel);
  if (button != nullptr) {
    button->Press();
  } else {
    form_.PressEscape();
  }
}

/// Enter arrives here if no default button takes it.
void FormWindow::PressEnterInControl() {
  Control* const focused = form_.Focused();
  if (focused != nullptr) focused->PressEnter();
}

/// The dialog manager asks to move the focus: to a window, to the next control (`target` is 0) or to the
/// previous one.
void FormWindow::MoveDialogFocus(WPARAM target, bool target_is_window) const {
  HWND const next = target_is_window ? reinterpret_cast<HWND>(target)
                                     : GetNextDlgTabItem(main_.get(), GetFocus(), target != 0 ? TRUE : FALSE);
  if (next == nullptr) return;
  SetFocus(next);
  // As in every dialog, moving to a text field selects its text, so typing replaces it.
  if ((SendMessageA(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) SendMessageA(next, EM_SETSEL, 0, -1);
}

}  // namespace qdix::ui::win32
