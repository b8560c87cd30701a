#include "app/single_instance.h"

#include <array>

namespace qdix::app {

namespace {

constexpr const char* kMutexName = "QDIX.SingleInstance";
/// Classes of the hidden application window: of this program and of the run-time libraries of earlier
/// installations.
constexpr std::array<const char*, 3> kApplicationClasses{"ThunderRTMain", "ThunderRT5Main", "ThunderRT6Main"};
/// Title of this copy while it searches for the other one, so it does not find itself.
constexpr std::string_view kUnwantedTitle = "unwanted instance";

}  // namespace

bool SingleInstance::AnotherIsRunning() { return system_.processes.MutexExistedBefore(kMutexName); }

void SingleInstance::ActivatePrevInstance() {
  const std::string title = application_.Title();
  application_.SetTitle(kUnwantedTitle);
  const os::WindowHandle application_window = FindOtherApplicationWindow(title);
  if (application_window != 0) {
    const os::WindowHandle window = system_.windows.GetWindow(application_window, os::kGwHwndPrev);
    if (window == 0) {
      system_.dialogs.MessageBoxA("error in ActivatePrecInstance", title, os::kMbOk);
    } else {
      system_.windows.OpenIcon(window);
      // Not SW_SHOW: Windows would replace it by the show command with which this copy was started.
      system_.windows.ShowWindow(window, os::kSwShowNa);
      system_.windows.SetForegroundWindow(window);
    }
  }
  form_.Unload();
}

os::WindowHandle SingleInstance::FindOtherApplicationWindow(const std::string& title) const {
  for (const char* window_class : kApplicationClasses) {
    const os::WindowHandle found = system_.windows.FindWindowA(window_class, title.c_str());
    if (found != 0) return found;
  }
  return 0;
}

}  // namespace qdix::app
