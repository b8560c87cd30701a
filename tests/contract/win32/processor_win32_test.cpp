// The real processor, with its time-stamp counter forbidden as a system may do.
#include "os/win32/win32_processor.h"
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

using os::win32::Win32Processor;

constexpr int kAllow = 1;
constexpr int kForbid = 2;
/// What Linux's own answer never is for these two: qemu's user mode does not know the call.
constexpr int kInvalidArgument = -22;

/// Linux, on which Wine runs, lets a thread forbid itself the counter: the call "prctl" with its
/// PR_SET_TSC. Called directly, since Wine passes nothing of it on. 0 is success.
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

TEST(ProcessorWin32, ForbiddenCounterIsAbsentAndFaultsNothing) {
  const int forbidden = SetCounter(kForbid);
  if (forbidden == kInvalidArgument) GTEST_SKIP() << "an emulator that cannot forbid the counter runs this";
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

}  // namespace
}  // namespace qdix::contract
