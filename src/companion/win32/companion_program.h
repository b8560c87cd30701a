// The common part of the companion programs' entry points: the real system, the program object, its window,
// and the message loop. Contains no logic.
#pragma once

#include <windows.h>

#include <span>

#include "os/win32/win32_system.h"
#include "ui/win32/form_window.h"

namespace qdix::companion::win32 {

/// `Program` is constructed from the system and any further arguments given here. It must have
/// TheApplication, Window, Start and EndSession. Allocate this on the heap: the controls alone would be too
/// large for a stack frame.
template <class Program>
class CompanionProgram {
 public:
  template <class... Others>
  CompanionProgram(HINSTANCE instance, int icon_id, ui::win32::PeerFactory make_peer, Others&... others)
      : program_(system_.GetSystem(), others...),
        window_(instance, icon_id, program_.TheApplication(), program_.Window(),
                std::span<ui::Timer* const>(), make_peer) {
    using Hook = base::Callback<void()>;
    window_.OnUnloaded = Hook::To<&os::win32::Win32System::Stop>(system_);
    window_.OnSessionEnding = Hook::To<&Program::EndSession>(program_);
    system_.SetMainWindow(window_.MainWindow());
  }

  [[nodiscard]] Program& TheProgram() { return program_; }
  [[nodiscard]] ui::win32::FormWindow& Window() { return window_; }

  /// `show_command` is how the caller wants the window shown (SW_...). Returns when the window has unloaded;
  /// returns false if the windows could not be made.
  [[nodiscard]] bool Run(int show_command) {
    if (!window_.Complete()) return false;
    window_.SetStartCommand(show_command);
    program_.Start();
    while (system_.EventPump().WaitAndHandle()) {
    }
    return true;
  }

 private:
  // Destroyed in reverse order: first the windows, then the program whose models they show, then the system.
  os::win32::Win32System system_;
  Program program_;
  ui::win32::FormWindow window_;
};

}  // namespace qdix::companion::win32
