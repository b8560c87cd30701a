#include "bench/measures.h"
#include "bench/session.h"
#include "bench/stopwatch.h"
#include "tests/e2e/driver/bare_loop.h"
#include "tests/e2e/driver/native_windows.h"

namespace qdix::bench {

namespace {

constexpr int kRounds = 7;
/// Enough that the 10 ms resolution of processor time does not matter.
constexpr int kRepeats = 5;
constexpr int kLargeMb = 232;
constexpr int kSmallMb = 1;
/// A megabyte as the amounts to free count it.
constexpr SIZE_T kBytesPerMb = 1040000;
/// Pumps of a pass after it has touched its memory, and again after it has freed it.
constexpr int kPumps = 5000;
constexpr double kMaxRatio = 1.1;

/// Returns the processor time of one pass. BM_CLICK returns at the end of the release.
double PassMs(const e2e::ShippedProgram& program, int amount_mb) {
  Require(program.Choose("List1", std::to_string(amount_mb) + " MB"), "the list lacks an amount");
  const int passes = std::atoi(program.Text("Text1").c_str());
  Require(passes > 0, "the number of passes is none");
  const double before_ms = ProcessorMs(program.Process());
  for (int i = 0; i < kRepeats; ++i) e2e::Ask(program.Control("Command1"), BM_CLICK);
  const double ms = ProcessorMs(program.Process()) - before_ms;
  Require(program.IsEnabled("Command1"), "the release did not end");
  return ms / passes / kRepeats;
}

/// Returns the processor time of a bare loop that takes, touches and frees the same amount.
double LoopMs(int amount_mb) {
  const double before_ms = ProcessorMs(GetCurrentProcess());
  const SIZE_T bytes = amount_mb * kBytesPerMb;
  for (int i = 0; i < kRepeats; ++i) {
    {
      const e2e::TouchedBlock block(bytes);
      Require(block.IsThere(), "the loop gets no memory");
      e2e::Pump(kPumps);
    }
    e2e::Pump(kPumps);
  }
  return (ProcessorMs(GetCurrentProcess()) - before_ms) / kRepeats;
}

}  // namespace

Row MeasureRelease() {
  e2e::ShippedProgram program;
  StartAndSettle(program);
  std::vector<double> large;
  std::vector<double> small;
  std::vector<double> large_loop;
  std::vector<double> small_loop;
  for (int round = 0; round < kRounds; ++round) {
    small.push_back(PassMs(program, kSmallMb));
    large.push_back(PassMs(program, kLargeMb));
    small_loop.push_back(LoopMs(kSmallMb));
    large_loop.push_back(LoopMs(kLargeMb));
  }
  CloseAndWait(program);
  // Pumps cost more while much memory is held, so the loop also pumps. Subtracting the run with 1 MB removes
  // the pumps on both sides.
  return Compared(
      "processor time of a release of 232 MB less one of 1 MB, fastest of 7, beside a loop that takes, "
      "touches "
      "and frees as much, less the same with 1 MB",
      {Fastest(large) - Fastest(small)}, {Fastest(large_loop) - Fastest(small_loop)}, "ms", kMaxRatio,
      "at most 1.1 x the loop");
}

}  // namespace qdix::bench
