#include <functional>

#include "bench/measures.h"
#include "bench/other_program.h"
#include "bench/session.h"
#include "bench/stopwatch.h"

namespace qdix::bench {

namespace {

constexpr int kRounds = 15;
constexpr double kLimitMs = 30000;

/// The result is exact to this pause; without one the questions would keep the server busy that makes the
/// windows.
constexpr DWORD kPauseMs = 1;

double MsUntil(const std::function<bool()>& start, const std::function<bool()>& is_shown) {
  const Stopwatch watch;
  Require(start(), "a program does not start");
  while (!is_shown()) {
    Require(watch.Ms() < kLimitMs, "a window is not shown");
    Sleep(kPauseMs);
  }
  return watch.Ms();
}

double StartOurs() {
  MakeMachineKnown();
  e2e::ShippedProgram program;
  const double ms = MsUntil([&] { return program.Start(); },
                            [&] {
                              const HWND window = program.MainWindow();
                              return window != nullptr && IsWindowVisible(window) != 0;
                            });
  Require(program.WaitForFirstReading(), "QDIX.exe shows no figures");
  CloseAndWait(program);
  return ms;
}

double StartNotepad() {
  OtherProgram notepad("notepad.exe", "Notepad");
  const double ms = MsUntil([&] { return notepad.Start(); }, [&] { return notepad.IsShown(); });
  notepad.End();
  return ms;
}

}  // namespace

Row MeasureStart() {
  // The first of each fills the caches of the machine.
  StartOurs();
  StartNotepad();
  std::vector<double> ours;
  std::vector<double> theirs;
  for (int round = 0; round < kRounds; ++round) {
    ours.push_back(StartOurs());
    theirs.push_back(StartNotepad());
  }
  return Compared("start until the window is shown, beside notepad, fastest of 15", {Fastest(ours)},
                  {Fastest(theirs)}, "ms", 1, "not above notepad");
}

}  // namespace qdix::bench
