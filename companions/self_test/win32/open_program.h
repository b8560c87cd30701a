// One of the programs with its window, on the private system.
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

/// What every check of windows works with.
struct Bench {
  HINSTANCE instance;
  Report& report;
  PrivateSystem& system;
};

/// Peers of every kind of control that any of the programs has.
[[nodiscard]] std::unique_ptr<ui::win32::NativeControl> MakeAnyPeer(const ui::win32::PeerContext& context,
                                                                    ui::Control& model, HWND parent,
                                                                    int number);

/// The timers of a program: the companions have none.
[[nodiscard]] inline screens::MainWindow::AllTimers TimersOf(app::Form1& program) { return program.Timers(); }
template <class Program>
[[nodiscard]] std::array<ui::Timer*, 0> TimersOf(Program& /*program*/) {
  return {};
}

/// Lives on the heap: the controls alone are more than a frame of the stack should hold.
template <class Program>
class OpenProgram {
 public:
  template <class... Others>
  explicit OpenProgram(const Bench& bench, Others&... others)
      : system_(bench.system),
        program_(bench.system.GetSystem(), others...),
        timers_(TimersOf(program_)),
        window_(bench.instance, kSelfTestIcon, program_.TheApplication(), program_.Window(), timers_,
                &MakeAnyPeer) {}
  OpenProgram(const OpenProgram&) = delete;
  OpenProgram& operator=(const OpenProgram&) = delete;
  ~OpenProgram() { program_.Window().Unload(); }

  [[nodiscard]] Program& TheProgram() { return program_; }
  [[nodiscard]] HWND MainWindow() const { return window_.MainWindow(); }

  /// Starts the program as its own entry does. What it says meanwhile becomes part of the outcome.
  [[nodiscard]] Outcome Start() {
    if (!window_.Complete()) return Outcome::Failed("a window could not be made");
    static_cast<void>(system_.Dialogs().TakeTexts());
    program_.Start();
    system_.GetSystem().event_pump.PumpEvents();
    const std::string said = system_.Dialogs().TakeTexts();
    if (program_.Window().Unloaded()) return Outcome::Failed("it closed again and said: " + said);
    if (IsWindowVisible(MainWindow()) == FALSE) return Outcome::Failed("the window is not shown");
    return Outcome::Ok(said.empty() ? said : "it said: " + said);
  }

  /// WalkWindows, after what is waiting to be drawn and done.
  [[nodiscard]] Outcome Walk() {
    system_.GetSystem().event_pump.PumpEvents();
    return WalkWindows(MainWindow(), program_.Window());
  }

  [[nodiscard]] HWND WindowOf(const ui::Control& control) {
    return win32::WindowOf(MainWindow(), program_.Window(), control);
  }

  /// What the system tells the parent of a control that was clicked or changed by hand.
  void Notify(const ui::Control& control, WORD code) {
    HWND const window = WindowOf(control);
    SendMessageA(GetParent(window), WM_COMMAND, static_cast<WPARAM>(MAKELONG(GetDlgCtrlID(window), code)),
                 reinterpret_cast<LPARAM>(window));
  }

 private:
  using Timers = decltype(TimersOf(std::declval<Program&>()));

  // The windows go first, then the program whose models they show.
  PrivateSystem& system_;
  Program program_;
  Timers timers_;
  ui::win32::FormWindow window_;
};

}  // namespace qdix::self_test::win32
