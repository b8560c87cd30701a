#include <array>

#include "bench/measures.h"
#include "bench/session.h"
#include "tests/e2e/driver/inside_process.h"
#include "tests/e2e/driver/native_windows.h"
#include "tests/e2e/driver/other_program.h"
#include "tests/e2e/driver/process_resources.h"

namespace qdix::bench {

namespace {

void PrintLine(const char* name, HANDLE process, DWORD process_id, const std::string& timers) {
  const e2e::ProcessResources held = e2e::CountResources(process, process_id);
  const auto top_level = static_cast<int>(e2e::TopLevelWindows(process_id).size());
  std::printf("| %s | %d | %d | %d | %d | %s |\n", name, top_level, held.windows - top_level,
              held.drawing_objects, held.handles, timers.c_str());
}

/// Timers of the main window are numbered from 1. The only way to find out whether a timer exists is to stop
/// it, so this is the last measurement of the program.
int StopAndCountTimers(const e2e::ShippedProgram& program) {
  constexpr std::uint32_t kMaxTimers = 16;
  const std::uint32_t kill_timer = e2e::SystemFunction("user32.dll", "KillTimer");
  const auto window = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(program.MainWindow()));
  int count = 0;
  for (std::uint32_t number = 1; number <= kMaxTimers; ++number) {
    const auto stopped = e2e::CallInside(program.Process(), kill_timer, {window, number});
    Require(stopped.has_value(), "the timers could not be counted");
    if (*stopped != 0) ++count;
  }
  return count;
}

void PrintOther(const char* name, const std::string& command_line, const std::string& window_class) {
  e2e::OtherProgram program(command_line, window_class);
  Require(program.Start() && e2e::Eventually([&] { return program.IsShown(); }),
          command_line + " is not shown");
  Require(WaitForInputIdle(program.Process(), e2e::kDeadlineMs) == 0,
          command_line + " does not come to rest");
  PrintLine(name, program.Process(), program.ProcessId(), "not known");
}

}  // namespace

void PrintResources() {
  e2e::ShippedProgram program;
  StartAndSettle(program);
  DWORD process_id = 0;
  GetWindowThreadProcessId(program.MainWindow(), &process_id);
  std::puts(
      "| Program | top-level windows | child windows | GDI objects | handles | timers of its main window |");
  std::puts("|---|---|---|---|---|---|");
  // Printed before the timers are stopped, which could change these figures.
  PrintLine("`QDIX.exe`", program.Process(), process_id, "in the next line");
  std::printf("| its timers, default settings | | | | | %d |\n", StopAndCountTimers(program));
  program.Kill();
  PrintOther("notepad", "notepad.exe", "Notepad");
  PrintOther("taskmgr", "taskmgr.exe", "#32770");
  PrintOther("regedit", "regedit.exe", "RegEdit_RegEdit");
}

}  // namespace qdix::bench
