// The common part of the programs' entry points: the real system, the program object, its window, and the
// message loop. Contains no logic.
#pragma once

#include <windows.h>

#include <array>

#include "os/win32/win32_system.h"
#include "ui/win32/form_window.h"

namespace qdix::host::win32 {

/// Returns the timers of a program; none if it has no `Timers`.
template <class Program>
[[nodiscard]] auto TimersOf(Program& program) {
  if constexpr (requires { program.Timers(); }) {
    return program.Timers();
  } else {
    return std::array<ui::Timer*, 0>{};
  }
}

/// `Program` is constructed from the system and any further arguments given here. It must have
/// TheApplication, Form, Start and EndSession, and may have Timers. Allocate this on the heap: the controls
/// alone would be too large for a stack frame.
template <class Program>
class ProgramHost {
 public:
  template <class... Others>
  ProgramHost(HINSTANCE instance, int icon_id, ui::win32::PeerFactory make_peer, Others&... others)
      : program_(system_.GetSystem(), others...),
        timers_(TimersOf(program_)),
        window_(instance, icon_id, program_.TheApplication(), program_.Form(), timers_, make_peer) {
    using Hook = base::Callback<void()>;
    window_.OnUnloaded = Hook::To<&os::win32::Win32System::Stop>(system_);
    window_.OnSessionEnding = Hook::To<&Program::EndSession>(program_);
    system_.SetMainWindow(window_.MainWindow());
  }

  [[nodiscard]] Program& TheProgram() { return program_; }
  [[nodiscard]] ui::win32::FormWindow& Window() { return window_; }

  /// `show_command` is how the caller wants the window shown (SW_...). It applies only if the program shows
  /// its window at start, not if it shows a hidden one later. Returns the exit code when the window has
  /// unloaded: 0, or 1 if the windows could not be made.
  [[nodiscard]] int Run(int show_command) {
    if (!window_.Complete()) return 1;
    window_.SetStartCommand(show_command);
    program_.Start();
    window_.SetStartCommand(SW_SHOWDEFAULT);
    while (system_.EventPump().WaitAndHandle()) {
    }
    return 0;
  }

 private:
  // Destroyed in reverse order: first the windows, then the program whose models they show, then the system.
  os::win32::Win32System system_;
  Program program_;
  decltype(TimersOf(program_)) timers_;
  ui::win32::FormWindow window_;
};

}  // namespace qdix::host::win32
