#include <functional>

#include "bench/foreign_copy.h"
#include "bench/measures.h"
#include "bench/session.h"
#include "bench/stopwatch.h"
#include "tests/e2e/driver/other_program.h"

namespace qdix::bench {

namespace {

constexpr int kRounds = 15;
/// Of the time that notepad takes, whose window is a single one.
constexpr double kMaxRatio = 1.4;
constexpr double kLimitMs = 30000;

/// The precision of the result. Without a pause the polling would keep Wine's server busy, which creates the
/// windows.
constexpr DWORD kPauseMs = 1;

/// When a program has ended, the desktop is still busy with its window.
constexpr DWORD kRestMs = 500;

double MsUntil(const std::function<bool()>& start, const std::function<bool()>& is_shown) {
  Sleep(kRestMs);
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

double StartNotepad(const std::string& path) {
  e2e::OtherProgram notepad(path, "Notepad");
  const double ms = MsUntil([&] { return notepad.Start(); }, [&] { return notepad.IsShown(); });
  notepad.End();
  return ms;
}

}  // namespace

std::vector<Row> MeasureStart() {
  const ForeignCopy copy("notepad.exe");
  // Not counted: the first start of each program fills the caches of the machine.
  StartOurs();
  StartNotepad(copy.Path());
  StartNotepad("notepad.exe");
  std::vector<double> ours;
  std::vector<double> copied;
  std::vector<double> notepad;
  for (int round = 0; round < kRounds; ++round) {
    ours.push_back(StartOurs());
    copied.push_back(StartNotepad(copy.Path()));
    notepad.push_back(StartNotepad("notepad.exe"));
  }
  const std::string what = "start until the window is shown, fastest of 15, beside notepad loaded ";
  const std::string budget = "at most " + Decimals(kMaxRatio, 1) + " x notepad";
  return {
      Compared(what + "as any other program", {Fastest(ours)}, {Fastest(copied)}, "ms", kMaxRatio, budget),
      Compared(what + "as Wine loads its own", {Fastest(ours)}, {Fastest(notepad)}, "ms", kMaxRatio, budget)};
}

}  // namespace qdix::bench
