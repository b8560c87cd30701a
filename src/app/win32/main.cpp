// The entry point of the shipped program: connects the program, its window and its icon next to the clock.
// Contains no logic.
#include <windows.h>

#include "app/form1.h"
#include "app/win32/resources.h"
#include "host/win32/program_host.h"
#include "os/win32/win32_system.h"
#include "runtime/entry.h"

namespace qdix::app::win32 {

namespace {

static_assert(screens::kProgramPicture == kProgramIcon && screens::kLightBulbPicture == kLightBulbIcon);

/// Adds to the host what only this program has: an icon next to the clock.
class Program {
 public:
  explicit Program(HINSTANCE instance) : host_(instance, kProgramIcon, &ui::win32::MakePeer) {
    ui::win32::FormWindow& window = host_.Window();
    window.OnTaskbarCreated = base::Callback<void()>::To<&TrayIcon::AddToTray>(host_.TheProgram().TrayIcon());
    host_.TheProgram().TrayIcon().SetOwner(reinterpret_cast<os::WindowHandle>(window.MainWindow()),
                                           reinterpret_cast<os::IconHandle>(window.SmallIcon()));
  }

  [[nodiscard]] int Run(int show_command) { return host_.Run(show_command); }

 private:
  host::win32::ProgramHost<Form1, os::win32::Win32System> host_;
};

}  // namespace

}  // namespace qdix::app::win32

extern "C" int QdixMain(void* instance, int show_command) {
  auto* const program = new qdix::app::win32::Program(static_cast<HINSTANCE>(instance));
  return program->Run(show_command);
}
