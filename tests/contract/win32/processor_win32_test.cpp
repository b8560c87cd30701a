// The real processor, also with its time-stamp counter disabled as a system may do.
#include "os/win32/win32_processor.h"
#include "tests/contract/machine.h"

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

}  // namespace
}  // namespace qdix::contract
