// The processor as a program can question it. Everything here is safe on any processor from the 386 up: what
// it lacks is answered as absent, and nothing faults.
#pragma once

#include <cstdint>

namespace qdix::os {

/// The four registers that an identification leaf answers in.
struct CpuidRegisters {
  std::uint32_t eax = 0;
  std::uint32_t ebx = 0;
  std::uint32_t ecx = 0;
  std::uint32_t edx = 0;
};

/// Clock cycles that passed in a measured time.
struct CycleCount {
  std::uint64_t cycles = 0;
  /// In microseconds; 0 where nothing could be measured.
  std::uint64_t microseconds = 0;
};

class Processor {
 public:
  virtual ~Processor() = default;

  /// 3 for a 386, 4 for a 486 and everything later. Told by the alignment-check flag, which a 386 keeps
  /// clear.
  [[nodiscard]] virtual int Generation() = 0;

  /// True where the processor identifies itself: most from 1993 on. Told by the identification flag.
  [[nodiscard]] virtual bool HasCpuid() = 0;

  /// Answers of an identification leaf; all zero without HasCpuid.
  [[nodiscard]] virtual CpuidRegisters Cpuid(std::uint32_t leaf) = 0;

  /// Counts cycles by the time-stamp counter for about `milliseconds`. To be called only where the processor
  /// says that it has the counter. Nothing measured where the system forbids the counter or has no fine
  /// clock.
  [[nodiscard]] virtual CycleCount CountCycles(std::uint32_t milliseconds) = 0;
};

}  // namespace qdix::os
