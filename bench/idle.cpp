#include "bench/foreign_copy.h"
#include "bench/measures.h"
#include "bench/session.h"
#include "bench/stopwatch.h"
#include "tests/e2e/driver/other_program.h"
#include "tests/e2e/driver/process_memory.h"

namespace qdix::bench {

namespace {

constexpr DWORD kMinuteMs = 60000;
constexpr int kMinutes = 3;
constexpr double kBytesPerKb = 1024;

Row MeasureMemory(const e2e::ShippedProgram& program, const std::string& path, const std::string& how) {
  e2e::OtherProgram notepad(path, "Notepad");
  Require(notepad.Start() && e2e::Eventually([&] { return notepad.IsShown(); }), "notepad is not shown");
  Require(WaitForInputIdle(notepad.Process(), e2e::kDeadlineMs) == 0, "notepad does not come to rest");
  const double ours = static_cast<double>(program.CommittedBytes()) / kBytesPerKb;
  const double theirs = static_cast<double>(e2e::CommittedBytes(notepad.Process())) / kBytesPerKb;
  return Compared("private committed memory at idle, beside notepad loaded " + how, {ours}, {theirs}, "KB", 1,
                  "not above notepad");
}

/// Measures both programs during the same minutes.
Row MeasureMinutes(const e2e::ShippedProgram& program, const e2e::OtherProgram& taskmgr,
                   const std::string& how) {
  std::vector<double> ours;
  std::vector<double> theirs;
  for (int minute = 0; minute < kMinutes; ++minute) {
    const double ours_before = ProcessorMs(program.Process());
    const double theirs_before = ProcessorMs(taskmgr.Process());
    Sleep(kMinuteMs);
    ours.push_back(ProcessorMs(program.Process()) - ours_before);
    theirs.push_back(ProcessorMs(taskmgr.Process()) - theirs_before);
  }
  return Compared("processor time of an idle minute, window " + how + ", beside taskmgr", ours, theirs, "ms",
                  1, "not above taskmgr");
}

}  // namespace

std::vector<Row> MeasureIdle() {
  e2e::ShippedProgram program;
  StartAndSettle(program);
  std::vector<Row> rows{MeasureMemory(program, ForeignCopy("notepad.exe").Path(), "as any other program"),
                        MeasureMemory(program, "notepad.exe", "as Wine loads its own")};
  e2e::OtherProgram taskmgr("taskmgr.exe", "#32770");
  Require(taskmgr.Start() && e2e::Eventually([&] { return taskmgr.IsShown(); }), "taskmgr is not shown");
  rows.push_back(MeasureMinutes(program, taskmgr, "shown"));
  program.Press("Command2");
  Require(e2e::Eventually([&] { return IsWindowVisible(program.MainWindow()) == 0; }), "the window stays");
  rows.push_back(MeasureMinutes(program, taskmgr, "hidden"));
  CloseAndWait(program);
  return rows;
}

}  // namespace qdix::bench
