// The real processor, also with its time-stamp counter disabled as a system may do.
#include "os/win32/win32_processor.h"
#include "tests/contract/machine.h"
#include "tests/contract/win32/detour.h"

namespace qdix::contract {
namespace {

using os::win32::Win32Processor;

constexpr int kAllow = 1;
constexpr int kForbid = 2;
/// Linux itself never returns this for these two modes. The user mode of qemu does, because it does not know
/// the call.
constexpr int kInvalidArgument = -22;

/// Linux, on which Wine runs, lets a thread disable the counter for itself by the system call "prctl" with
/// PR_SET_TSC. It is called directly because Wine does not forward it. 0 means success.
int SetCounter(int mode) {
  constexpr int kPrctl = 172;
  constexpr int kSetTsc = 26;
  int result = 0;
  __asm__ volatile("int $0x80"
                   : "=a"(result)
                   : "a"(kPrctl), "b"(kSetTsc), "c"(mode), "d"(0), "S"(0), "D"(0)
                   : "memory");
  return result;
}

TEST(ProcessorWin32, CounterRuns) {
  const auto first = Win32Processor::ReadTimeStampCounter();
  const auto second = Win32Processor::ReadTimeStampCounter();
  ASSERT_TRUE(first && second);
  EXPECT_GT(*second, *first);
}

TEST(ProcessorWin32, ForbiddenCounterIsAbsentAndCausesNoFault) {
  const int forbidden = SetCounter(kForbid);
  if (forbidden == kInvalidArgument)
    GTEST_SKIP() << "this runs under an emulator that cannot disable the counter";
  ASSERT_EQ(forbidden, 0);
  const auto reading = Win32Processor::ReadTimeStampCounter();
  const int allowed_again = SetCounter(kAllow);
  EXPECT_EQ(allowed_again, 0);
  EXPECT_FALSE(reading.has_value());
  EXPECT_TRUE(Win32Processor::ReadTimeStampCounter().has_value());
}

TEST(ProcessorWin32, EveryProcessorThatRunsTheseTestsIdentifiesItself) {
  Win32Processor processor;
  EXPECT_EQ(processor.Generation(), 4);
  EXPECT_TRUE(processor.HasCpuid());
}

/// Clocks that a test moves. Each reading of the high-resolution clock takes a millisecond.
struct FakeClocks {
  std::int64_t now_ms = 0;
  /// Waits of a program whose pages must be read from the disk first: in the first reading of the
  /// high-resolution clock, after it has taken the time, and in the second of the coarse clock, before it
  /// has.
  std::int64_t fine_wait_ms = 0;
  std::int64_t coarse_wait_ms = 0;
  int fine_readings = 0;
  int coarse_readings = 0;
};

FakeClocks& Clocks() {
  static FakeClocks clocks;
  return clocks;
}

BOOL WINAPI FakeFrequency(LARGE_INTEGER* ticks_per_second) {
  ticks_per_second->QuadPart = 1000;
  return TRUE;
}

BOOL WINAPI FakeFineClock(LARGE_INTEGER* ticks) {
  FakeClocks& clocks = Clocks();
  ticks->QuadPart = clocks.now_ms;
  clocks.now_ms += ++clocks.fine_readings == 1 ? 1 + clocks.fine_wait_ms : 1;
  return TRUE;
}

DWORD WINAPI FakeCoarseClock() {
  FakeClocks& clocks = Clocks();
  if (++clocks.coarse_readings == 2) clocks.now_ms += clocks.coarse_wait_ms;
  return static_cast<DWORD>(clocks.now_ms);
}

os::CycleCount CountWith(const FakeClocks& clocks) {
  constexpr std::uint32_t kMeasuringMs = 20;
  Clocks() = clocks;
  const Detour frequency("QueryPerformanceFrequency", reinterpret_cast<const void*>(&FakeFrequency));
  const Detour fine("QueryPerformanceCounter", reinterpret_cast<const void*>(&FakeFineClock));
  const Detour coarse("GetTickCount", reinterpret_cast<const void*>(&FakeCoarseClock));
  return Win32Processor().CountCycles(kMeasuringMs);
}

TEST(ProcessorWin32, WaitInTheFirstReadingOfTheClockIsNotMeasured) {
  const os::CycleCount count = CountWith({.fine_wait_ms = 500});
  EXPECT_GE(count.microseconds, 20000U);
  EXPECT_LE(count.microseconds, 30000U);
}

TEST(ProcessorWin32, JumpOfTheCoarseClockDoesNotDiscardTheMeasurement) {
  const os::CycleCount count = CountWith({.coarse_wait_ms = 500});
  EXPECT_GE(count.microseconds, 500000U);
  EXPECT_GT(count.cycles, 0U);
}

}  // namespace
}  // namespace qdix::contract
