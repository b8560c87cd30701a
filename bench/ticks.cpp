#include <algorithm>

#include "bench/measures.h"
#include "bench/session.h"
#include "bench/stopwatch.h"
#include "tests/support/program_rig.h"

namespace qdix::bench {

namespace {

constexpr int kTicks = 1000000;
constexpr int kPortion = 100000;
/// Few enough that the records which the simulated machine keeps of them cost no noticeable time.
constexpr int kStep = 1000;
constexpr double kUsPerMs = 1000;
/// The difference between two equal portions on a machine with other work.
constexpr double kMaxRatio = 1.1;

ui::Timer& DisplayTimer(app::Form1& program) {
  for (ui::Timer* timer : program.Timers()) {
    if (timer->Name() == "Timer1") return *timer;
  }
  Require(false, "there is no Timer1");
  std::abort();
}

/// Returns the microseconds per tick for each step of kStep ticks.
std::vector<double> TickUs(tests::ProgramRig& rig, ui::Timer& timer, int ticks) {
  std::vector<double> us;
  for (int done = 0; done < ticks; done += kStep) {
    const Stopwatch watch;
    for (int tick = 0; tick < kStep; ++tick) timer.Elapse();
    us.push_back(watch.Ms() * kUsPerMs / kStep);
    rig.machine.ClearRecords();
  }
  return us;
}

}  // namespace

Row MeasureTicks() {
  tests::ProgramRig rig;
  rig.SetHasRunBefore();
  rig.machine.SetCpuLoad(40);
  app::Form1& program = rig.Start();
  ui::Timer& timer = DisplayTimer(program);
  Require(timer.Running(), "Timer1 does not run");
  const std::vector<double> first = TickUs(rig, timer, kPortion);
  TickUs(rig, timer, kTicks - 2 * kPortion);
  const std::vector<double> last = TickUs(rig, timer, kPortion);
  return Compared(
      "a tick of `Timer1`, the last 100,000 of a million beside the first 100,000 (simulated machine)", last,
      first, "us", kMaxRatio, "constant");
}

}  // namespace qdix::bench
