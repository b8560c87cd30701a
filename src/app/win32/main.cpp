// The entry point of the shipped program: connects the program, its windows and Windows itself, and runs the
// message loop. Contains no logic.
#include <windows.h>

#include <memory>

#include "app/form1.h"
#include "app/win32/resources.h"
#include "os/win32/win32_system.h"
#include "runtime/entry.h"
#include "ui/win32/form_window.h"

namespace qdix::app::win32 {

namespace {

static_assert(screens::kProgramPicture == kProgramIcon && screens::kLightBulbPicture == kLightBulbIcon);

/// Everything that lives while the message loop runs. Allocated on the heap: the controls alone would be too
/// large for a stack frame.
class Program {
 public:
  explicit Program(HINSTANCE instance)
      : form1_(system_.GetSystem()),
        timers_(form1_.Timers()),
        window_(instance, kProgramIcon, form1_.TheApplication(), form1_.Window(), timers_,
                ui::win32::MakePeer) {
    using Hook = base::Callback<void()>;
    window_.OnUnloaded = Hook::To<&Program::Unloaded>(*this);
    window_.OnSessionEnding = Hook::To<&Form1::EndSession>(form1_);
    window_.OnTaskbarCreated = Hook::To<&Program::TaskbarCreated>(*this);
    system_.SetMainWindow(window_.MainWindow());
    form1_.Tray().SetOwner(reinterpret_cast<os::WindowHandle>(window_.MainWindow()),
                           reinterpret_cast<os::IconHandle>(window_.SmallIcon()));
  }

  /// `show_command` is how the caller wants the window shown (SW_...). It applies only if the window is shown
  /// at start, not if a hidden window is shown later. Returns when the window has unloaded; returns false if
  /// the windows could not be made.
  [[nodiscard]] bool Run(int show_command) {
    if (!window_.Complete()) return false;
    window_.SetStartCommand(show_command);
    form1_.Start();
    window_.SetStartCommand(SW_SHOWDEFAULT);
    while (system_.EventPump().WaitAndHandle()) {
    }
    return true;
  }

 private:
  void Unloaded() { system_.Stop(); }

  void TaskbarCreated() { form1_.Tray().AddToTray(); }

  // Destroyed in reverse order: first the windows, then the program whose models they show, then the system.
  os::win32::Win32System system_;
  Form1 form1_;
  screens::MainWindow::AllTimers timers_;
  ui::win32::FormWindow window_;
};

}  // namespace

}  // namespace qdix::app::win32

extern "C" int QdixMain(void* instance, int show_command) {
  const auto program = std::make_unique<qdix::app::win32::Program>(static_cast<HINSTANCE>(instance));
  return program->Run(show_command) ? 0 : 1;
}
