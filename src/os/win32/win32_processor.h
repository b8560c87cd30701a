// Implements `Processor` on Windows. Contains the only code with instructions newer than the 386; each is
// guarded.
#pragma once

#include <optional>

#include "os/processor.h"

namespace qdix::os::win32 {

class Win32Processor final : public Processor {
 public:
  [[nodiscard]] int Generation() override;
  [[nodiscard]] bool HasCpuid() override;
  [[nodiscard]] CpuidRegisters Cpuid(std::uint32_t leaf) override;
  [[nodiscard]] CycleCount CountCycles(std::uint32_t milliseconds) override;

  /// Returns the time-stamp counter, or nullopt if the system denies it to programs. Call it only if the
  /// processor has the counter.
  [[nodiscard]] static std::optional<std::uint64_t> ReadTimeStampCounter();
};

}  // namespace qdix::os::win32
