// The clock worked out from counted cycles, and the texts in the form that the label takes.
#include "cpu/processor_identification.h"

#include <gtest/gtest.h>

#include <string>

namespace qdix::tests {
namespace {

/// A Pentium whose cycle count a test sets.
class CountingProcessor final : public os::Processor {
 public:
  int Generation() override { return 5; }
  bool HasCpuid() override { return true; }
  os::CpuidRegisters Cpuid(std::uint32_t leaf) override {
    if (leaf == 0) return {.eax = 1, .ebx = 0x756e6547, .ecx = 0x6c65746e, .edx = 0x49656e69};
    return leaf == 1 ? os::CpuidRegisters{.eax = 0x52C, .edx = 0x1BF} : os::CpuidRegisters{};
  }
  os::CycleCount CountCycles(std::uint32_t /*milliseconds*/) override { return count; }

  os::CycleCount count;
};

TEST(ProcessorIdentification, ClockIsCyclesPerMicrosecondRoundedOrNothing) {
  constexpr std::uint64_t kLargestMhz = 2147483647;
  struct Counted {
    os::CycleCount count;
    std::int32_t mhz;
  };
  for (const auto& [count, mhz] :
       {Counted{{.cycles = 1333333, .microseconds = 10000}, 133},
        Counted{{.cycles = 1337, .microseconds = 10}, 134}, Counted{{.cycles = 5, .microseconds = 0}, 0},
        Counted{{.cycles = kLargestMhz, .microseconds = 1}, 2147483647},
        Counted{{.cycles = kLargestMhz + 1, .microseconds = 1}, 0}}) {
    CountingProcessor processor;
    processor.count = count;
    cpu::ProcessorIdentification identification(processor);
    EXPECT_EQ(identification.cpunormspeed(0), mhz) << count.cycles;
    cpu::TextBuffer speed;
    speed.fill('?');
    identification.GetProcessorNormSpeed(speed);
    EXPECT_EQ(std::string(speed.data()), std::to_string(mhz));
  }
}

TEST(ProcessorIdentification, ReportsMakerNameAndSignature) {
  CountingProcessor processor;
  cpu::ProcessorIdentification identification(processor);
  cpu::TextBuffer vendor;
  cpu::TextBuffer description;
  cpu::TextBuffer signature;
  for (cpu::TextBuffer* buffer : {&vendor, &description, &signature}) buffer->fill('?');
  identification.GetProcessor(vendor, description, signature);
  EXPECT_STREQ(vendor.data(), "GenuineIntel");
  EXPECT_STREQ(description.data(), "Intel Pentium");
  EXPECT_STREQ(signature.data(), "Family 5 Model 2 Stepping 12");
}

}  // namespace
}  // namespace qdix::tests
