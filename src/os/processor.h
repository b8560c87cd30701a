// Queries the processor. Every function is safe on any processor from the 386 up: it reports a missing
// feature as absent and never faults.
#pragma once

#include <cstdint>

namespace qdix::os {

/// The four registers in which an identification leaf answers.
struct CpuidRegisters {
  std::uint32_t eax = 0;
  std::uint32_t ebx = 0;
  std::uint32_t ecx = 0;
  std::uint32_t edx = 0;
};

/// Clock cycles that passed in a measured time.
struct CycleCount {
  std::uint64_t cycles = 0;
  /// In microseconds; 0 if nothing could be measured.
  std::uint64_t microseconds = 0;
};

class Processor {
 public:
  /// Returns 3 for a 386, 4 for a 486 and everything later. Tests the alignment-check flag, which stays clear
  /// on a 386.
  [[nodiscard]] virtual int Generation() = 0;

  /// True if the processor identifies itself, as most do from 1993 on. Tests the identification flag.
  [[nodiscard]] virtual bool HasCpuid() = 0;

  /// Returns the answer of an identification leaf; all zero without HasCpuid.
  [[nodiscard]] virtual CpuidRegisters Cpuid(std::uint32_t leaf) = 0;

  /// Counts cycles with the time-stamp counter for about `milliseconds`. Call it only if the processor
  /// reports the counter. Measures nothing if the system forbids the counter or has no high-resolution timer.
  [[nodiscard]] virtual CycleCount CountCycles(std::uint32_t milliseconds) = 0;

 protected:
  ~Processor() = default;
};

}  // namespace qdix::os
