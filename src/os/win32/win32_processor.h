// Questions the real processor. The only code with instructions newer than the 386; each is guarded.
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

  /// The time-stamp counter, or nothing where the system forbids it to programs. Only on a processor that has
  /// one.
  [[nodiscard]] static std::optional<std::uint64_t> ReadTimeStampCounter();
};

}  // namespace qdix::os::win32
