#include "config_launcher/other_copy.h"

#include "config_launcher/config_screen.h"

namespace qdix::config_launcher {

namespace {

constexpr const char* kMutexName = "QDIX.ConfigLauncher";
/// Class of the visible window. The hidden window that owns it has the same title.
constexpr const char* kWindowClass = "QDIXMain";
/// Class and title of the hidden window that owns the main window of Q-DIX. The title of the main window
/// itself changes.
constexpr const char* kQdixClass = "ThunderRT6Main";
constexpr const char* kQdixTitle = "Q-DIX";
/// Title of this copy while it searches for the other one, so it does not find itself.
constexpr std::string_view kOtherTitle = "second copy";

}  // namespace

bool BringOtherCopyForward(const ConfigSystem& system, ui::Application& application, ui::Form& form) {
  if (!system.processes.MutexExistedBefore(kMutexName)) return false;
  application.SetTitle(kOtherTitle);
  form.SetCaption(kOtherTitle);
  const os::WindowHandle window = system.windows.FindWindowA(kWindowClass, kTitle);
  if (window != 0) {
    system.windows.OpenIcon(window);
    system.windows.SetForegroundWindow(window);
  }
  return true;
}

bool MayBeThreadOfQdix(const ConfigSystem& system, std::uint32_t thread) {
  const os::WindowHandle window = system.windows.FindWindowA(kQdixClass, kQdixTitle);
  return window != 0 && (thread == 0 || system.windows.GetWindowThreadProcessId(window) == thread);
}

}  // namespace qdix::config_launcher
