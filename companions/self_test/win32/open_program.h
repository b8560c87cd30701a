// Runs one of the programs with its window on the private system.
#pragma once

#include <windows.h>

#include <array>
#include <memory>
#include <utility>

#include "app/form1.h"
#include "self_test/private_system.h"
#include "self_test/report.h"
#include "self_test/win32/resources.h"
#include "self_test/win32/window_walk.h"
#include "ui/win32/form_window.h"

namespace qdix::self_test::win32 {

/// What every check of windows needs.
struct Bench {
  HINSTANCE instance;
  Report& report;
  PrivateSystem& system;
};

/// Makes peers for every kind of control in any of the programs.
[[nodiscard]] std::unique_ptr<ui::win32::NativeControl> MakeAnyPeer(const ui::win32::PeerContext& context,
                                                                    ui::Control& model, HWND parent,
                                                                    int number);

/// Returns the timers of a program. Companions have none.
[[nodiscard]] inline screens::MainWindow::AllTimers TimersOf(app::Form1& program) { return program.Timers(); }
template <class Program>
[[nodiscard]] std::array<ui::Timer*, 0> TimersOf(Program& /*program*/) {
  return {};
}

/// Allocate on the heap: the controls alone would be too large for a stack frame.
template <class Program>
class OpenProgram {
 public:
  template <class... Others>
  explicit OpenProgram(const Bench& bench, Others&... others)
      : system_(bench.system),
        program_(bench.system.GetSystem(), others...),
        timers_(TimersOf(program_)),
        window_(bench.instance, kSelfTestIcon, program_.TheApplication(), program_.Form(), timers_,
                &MakeAnyPeer) {}
  OpenProgram(const OpenProgram&) = delete;
  OpenProgram& operator=(const OpenProgram&) = delete;
  ~OpenProgram() { program_.Form().Unload(); }

  [[nodiscard]] Program& TheProgram() { return program_; }
  [[nodiscard]] HWND MainWindow() const { return window_.MainWindow(); }

  /// Starts the program as its own entry point does. Its message boxes become part of the outcome.
  [[nodiscard]] Outcome Start() {
    if (!window_.Complete()) return Outcome::Failed("a window could not be created");
    static_cast<void>(system_.Dialogs().TakeTexts());
    program_.Start();
    system_.GetSystem().event_pump.PumpEvents();
    const std::string said = system_.Dialogs().TakeTexts();
    if (program_.Form().Unloaded()) return Outcome::Failed("it closed at once; message: " + said);
    if (IsWindowVisible(MainWindow()) == FALSE) return Outcome::Failed("the window is not shown");
    return Outcome::Ok(said.empty() ? said : "message: " + said);
  }

  /// Handles pending events, then calls WalkWindows.
  [[nodiscard]] Outcome Walk() {
    system_.GetSystem().event_pump.PumpEvents();
    return WalkWindows(MainWindow(), program_.Form());
  }

  [[nodiscard]] HWND WindowOf(const ui::Control& control) {
    return win32::WindowOf(MainWindow(), program_.Form(), control);
  }

  /// Sends the notification that Windows sends to the parent when the user clicks or changes a control.
  void Notify(const ui::Control& control, WORD code) {
    HWND const window = WindowOf(control);
    SendMessageA(GetParent(window), WM_COMMAND, static_cast<WPARAM>(MAKELONG(GetDlgCtrlID(window), code)),
                 reinterpret_cast<LPARAM>(window));
  }

 private:
  using Timers = decltype(TimersOf(std::declval<Program&>()));

  // Destroyed in reverse order: first the windows, then the program whose models they show.
  PrivateSystem& system_;
  Program program_;
  Timers timers_;
  ui::win32::FormWindow window_;
};

}  // namespace qdix::self_test::win32
