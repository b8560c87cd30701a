#include "app/tray_icon.h"

#include <algorithm>

#include "base/numbers.h"

namespace qdix::app {

namespace {

constexpr std::uint32_t kIconId = 1;
constexpr const char* kTaskbarClass = "Shell_TrayWnd";
/// Mouse messages that the icon passes on.
constexpr double kLeftButtonDoubleClick = 515;
constexpr double kRightButtonDown = 516;

}  // namespace

TrayIcon::TrayIcon(const os::System& system, ui::Form& form, screens::TrayMenu& menu,
                   memory::MemoryMonitor& monitor, memory::ManualRelease& release)
    : system_(system), form_(form), menu_(menu), monitor_(monitor), release_(release) {
  using ui::Handler;
  record_.id = kIconId;
  record_.flags = os::kNifAll;
  record_.callback_message = kCallbackMessage;
  form_.OnMouseMove =
      base::Callback<base::Status(int, int, double, double)>::To<&TrayIcon::Form_MouseMove>(*this);
  menu_.mnuTrayFreeup.OnClick = Handler::To<&TrayIcon::mnuTrayFreeup_Click>(*this);
  menu_.mnuTrayDisplay.OnClick = Handler::To<&TrayIcon::mnuTrayDisplay_Click>(*this);
  menu_.mnuTrayHide.OnClick = Handler::To<&TrayIcon::mnuTrayHide_Click>(*this);
  menu_.mnuTrayClose.OnClick = Handler::To<&TrayIcon::mnuTrayClose_Click>(*this);
  menu_.mnuTrayDisplay.SetDefault(true);
}

void TrayIcon::SetOwner(os::WindowHandle window, os::IconHandle icon) {
  record_.owner = window;
  record_.icon = icon;
}

bool TrayIcon::Notify(std::uint32_t request) { return system_.shell.Shell_NotifyIconA(request, record_); }

os::WindowHandle TrayIcon::Taskbar() const { return system_.windows.FindWindowA(kTaskbarClass, nullptr); }

void TrayIcon::AddToTray() {
  if (form_.Unloaded()) return;
  SetTip("Q-DIX");
  is_wanted_ = true;
  taskbar_ = Taskbar();
  is_in_place_ = Notify(os::kNimAdd);
}

/// Windows also refuses to add an icon that is already there, so this tries to modify it first.
void TrayIcon::RetryAdd() {
  if (is_wanted_ && !is_in_place_) is_in_place_ = Notify(os::kNimModify) || Notify(os::kNimAdd);
}

void TrayIcon::LookForTaskbar() {
  const os::WindowHandle taskbar = Taskbar();
  if (taskbar != 0 && taskbar != taskbar_) is_in_place_ = false;
  taskbar_ = taskbar;
  RetryAdd();
}

void TrayIcon::Remove() {
  if (!is_wanted_) return;
  is_wanted_ = false;
  Notify(os::kNimDelete);
}

/// The field is padded with blanks after the terminating NUL. A longer text is cut.
void TrayIcon::SetTip(std::string_view text) {
  record_.tip.fill(' ');
  const std::size_t length = std::min(text.size(), record_.tip.size() - 1);
  std::copy_n(text.begin(), length, record_.tip.begin());
  record_.tip[length] = '\0';
}

base::Status TrayIcon::Form_MouseMove(int /*button*/, int /*shift*/, double x_twips, double /*y_twips*/) {
  SetTip(base::ShortestText(monitor_.MemStatus()) + " MB");
  if (is_wanted_) Notify(os::kNimModify);
  const double message = base::RoundHalfEven(x_twips / ui::kTwipsPerPixel);
  if (message == kLeftButtonDoubleClick) Display();
  if (message == kRightButtonDown) form_.PopUpMenu(menu_.mnuTray);
  return base::kDone;
}

void TrayIcon::Display() {
  form_.Show();
  form_.SetState(ui::WindowState::kNormal);
}

base::Status TrayIcon::mnuTrayFreeup_Click() { return release_.Command1_Click(); }

base::Status TrayIcon::mnuTrayDisplay_Click() {
  Display();
  return base::kDone;
}

base::Status TrayIcon::mnuTrayHide_Click() {
  form_.Hide();
  return base::kDone;
}

base::Status TrayIcon::mnuTrayClose_Click() {
  form_.Unload();
  return base::kDone;
}

}  // namespace qdix::app
