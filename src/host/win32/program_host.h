// The common part of the programs' entry points: the real machine, the program object, its window, and the
// message loop. Contains no logic.
#pragma once

#include <windows.h>

#include <array>
#include <optional>
#include <utility>

#include "os/win32/interactive_machine.h"
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

/// `Machine` is an `InteractiveMachine` with whatever else the program uses of the machine. `Program` is
/// constructed from it and any further arguments given here. It must have TheApplication, Form, Start and
/// EndSession, and may have Timers. Allocate this on the heap: the controls
/// alone would be too large for a stack frame. It need not be destroyed before the process ends: after Run
/// only memory is left, and a destructor for every control costs 2 KB.
template <class Program, class Machine>
class ProgramHost {
 public:
  template <class... Others>
  ProgramHost(HINSTANCE instance, int icon_id, ui::win32::PeerFactory make_peer, Others&... others)
      : program_(*machine_, others...), timers_(TimersOf(program_)) {
    using Hook = base::Callback<void()>;
    window_.emplace(instance, icon_id, program_.TheApplication(), program_.Form(), timers_, make_peer);
    window_->OnUnloaded = Hook::To<&Machine::Stop>(*machine_);
    window_->OnSessionEnding = Hook::To<&Program::EndSession>(program_);
    machine_->SetMainWindow(window_->MainWindow());
  }

  [[nodiscard]] Program& TheProgram() { return program_; }
  [[nodiscard]] ui::win32::FormWindow& Window() { return *window_; }

  /// `show_command` is how the caller wants the window shown (SW_...). It applies only if the program shows
  /// its window at start, not if it shows a hidden one later. Returns the exit code when the window has
  /// unloaded, its windows are destroyed and its handles closed: 0, or 1 if the windows could not be made.
  [[nodiscard]] int Run(int show_command) {
    const bool is_complete = window_->Complete();
    if (is_complete) RunUntilUnloaded(show_command);
    window_.reset();
    machine_.reset();
    return is_complete ? 0 : 1;
  }

 private:
  void RunUntilUnloaded(int show_command) {
    window_->SetStartCommand(show_command);
    program_.Start();
    window_->SetStartCommand(SW_SHOWDEFAULT);
    while (machine_->event_pump.WaitAndHandle()) {
    }
  }

  // Run empties `window_`, then `machine_`, as the destructor would: windows and handles must not be left.
  std::optional<Machine> machine_{std::in_place};
  Program program_;
  decltype(TimersOf(program_)) timers_;
  std::optional<ui::win32::FormWindow> window_;
};

}  // namespace qdix::host::win32
