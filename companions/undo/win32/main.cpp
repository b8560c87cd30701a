// The entry of undo.exe: puts the program, its window and the real system together and runs the message loop.
// Decides nothing.
#include <windows.h>

#include <memory>
#include <span>

#include "os/win32/win32_system.h"
#include "runtime/entry.h"
#include "ui/win32/form_window.h"
#include "undo/undo_form.h"
#include "undo/win32/resources.h"

namespace qdix::undo::win32 {

namespace {

/// What lives as long as the process runs its loop. On the heap, since the controls alone are more than a
/// frame of the stack should hold.
class Program {
 public:
  explicit Program(HINSTANCE instance)
      : form_(system_.GetSystem()),
        window_(instance, kUndoIcon, form_.TheApplication(), form_.Window(), std::span<ui::Timer* const>()) {
    using Hook = base::Callback<void()>;
    window_.OnUnloaded = Hook::To<&os::win32::Win32System::Stop>(system_);
    window_.OnSessionEnding = Hook::To<&UndoForm::EndSession>(form_);
    system_.SetMainWindow(window_.MainWindow());
  }

  /// Returns when the window has unloaded; false where the windows could not be made.
  [[nodiscard]] bool Run() {
    if (!window_.Complete()) return false;
    form_.Start();
    while (system_.EventPump().WaitAndHandle()) {
    }
    return true;
  }

 private:
  // The windows go first, then the program whose models they show, then the system.
  os::win32::Win32System system_;
  UndoForm form_;
  ui::win32::FormWindow window_;
};

}  // namespace

}  // namespace qdix::undo::win32

/// The system applies the wish of who started the program by itself, when the main window is shown for the
/// first time.
extern "C" int QdixMain(void* instance, int /*show_command*/) {
  const auto program = std::make_unique<qdix::undo::win32::Program>(static_cast<HINSTANCE>(instance));
  return program->Run() ? 0 : 1;
}
