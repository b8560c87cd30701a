#include "bench/measures.h"
#include "bench/session.h"
#include "bench/stopwatch.h"
#include "tests/e2e/driver/native_windows.h"

namespace qdix::bench {

namespace {

constexpr int kRounds = 31;
constexpr int kLargeMb = 232;
constexpr int kSmallMb = 1;
/// Of the megabytes that amounts to free are counted in.
constexpr SIZE_T kBytesPerMb = 1040000;
constexpr SIZE_T kPageBytes = 4096;
constexpr double kMostRatio = 1.1;

/// One pass of a release, from the press to the end of the last one: a press by message comes back then.
double PassMs(const e2e::ShippedProgram& program, int amount_mb) {
  const int passes = std::atoi(program.Text("Text1").c_str());
  Require(passes > 0, "the number of passes is none");
  Require(program.Choose("List1", std::to_string(amount_mb) + " MB"), "the list lacks an amount");
  const Stopwatch watch;
  e2e::Ask(program.Control("Command1"), BM_CLICK);
  const double ms = watch.Ms();
  Require(program.IsEnabled("Command1"), "the release did not end");
  return ms / passes;
}

double LoopMs(SIZE_T bytes) {
  const Stopwatch watch;
  auto* const block = static_cast<volatile char*>(VirtualAlloc(nullptr, bytes, MEM_COMMIT, PAGE_READWRITE));
  Require(block != nullptr, "the loop gets no memory");
  for (SIZE_T at = 0; at < bytes; at += kPageBytes) block[at] = 1;
  VirtualFree(const_cast<char*>(block), 0, MEM_RELEASE);
  return watch.Ms();
}

}  // namespace

Row MeasureRelease() {
  e2e::ShippedProgram program;
  StartAndSettle(program);
  std::vector<double> small_ms;
  std::vector<double> large_ms;
  std::vector<double> loop_ms;
  for (int round = 0; round < kRounds; ++round) {
    small_ms.push_back(PassMs(program, kSmallMb));
    large_ms.push_back(PassMs(program, kLargeMb));
    loop_ms.push_back(LoopMs((kLargeMb - kSmallMb) * kBytesPerMb));
  }
  CloseAndWait(program);
  // Both pump equally often, so that the difference has no pumps in it.
  return Compared(
      "a pass of a release of 232 MB less one of 1 MB, beside a loop that takes, touches and frees 231 MB, "
      "fastest of 31",
      {Fastest(large_ms) - Fastest(small_ms)}, {Fastest(loop_ms)}, "ms", kMostRatio,
      "at most 1.1 x the loop");
}

}  // namespace qdix::bench
