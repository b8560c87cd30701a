// The processor: how it identifies itself, and its cycle counter.
#include "tests/contract/machine.h"

namespace qdix::contract {
namespace {

constexpr std::uint32_t kTimeStampCounterBit = 0x10;
constexpr std::uint32_t kMeasuringMs = 20;

using ProcessorContract = ContractTest;

TEST_F(ProcessorContract, GenerationIs386OrLater) {
  const int generation = system.processor.Generation();
  EXPECT_TRUE(generation == 3 || generation == 4) << generation;
}

TEST_F(ProcessorContract, IdentifiesItselfTheSameEachTime) {
  ASSERT_TRUE(system.processor.HasCpuid());
  const os::CpuidRegisters maker = system.processor.Cpuid(0);
  EXPECT_GE(maker.eax, 1U) << "the highest leaf";
  EXPECT_NE(maker.ebx, 0U) << "the maker's first four characters";
  EXPECT_EQ(system.processor.Cpuid(0).ebx, maker.ebx);
}

TEST_F(ProcessorContract, CyclesAreCountedOverAtLeastTheTimeAskedFor) {
  ASSERT_NE(system.processor.Cpuid(1).edx & kTimeStampCounterBit, 0U);
  const os::CycleCount count = system.processor.CountCycles(kMeasuringMs);
  EXPECT_GE(count.microseconds, std::uint64_t{1000} * kMeasuringMs);
  EXPECT_GT(count.cycles, 10 * count.microseconds) << "every processor with the counter is faster than that";
}

}  // namespace
}  // namespace qdix::contract
