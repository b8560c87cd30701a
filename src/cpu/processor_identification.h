// The processor's name and clock, found out from the processor itself.
#pragma once

#include <optional>

#include "cpu/processor_information.h"
#include "cpu/processor_name.h"

namespace qdix::cpu {

class ProcessorIdentification final : public ProcessorInformation {
 public:
  /// The clock is measured once, for this long. The fine clock of these systems ticks 1.19 times in a
  /// microsecond, and asking it takes a few of them: 10 ms leave less than a thousandth in doubt.
  static constexpr std::uint32_t kMeasuringMs = 10;

  explicit ProcessorIdentification(os::Processor& processor) : processor_(processor) {}

  void GetProcessorNormSpeed(TextBuffer& speed) override;
  void GetProcessor(TextBuffer& vendor, TextBuffer& description, TextBuffer& signature) override;
  [[nodiscard]] std::int32_t cpunormspeed(std::int32_t reserved) override;

 private:
  struct Found {
    ProcessorIdentity identity;
    std::int32_t clock_mhz = 0;
  };
  /// Asks the processor at the first call only.
  const Found& TheProcessor();

  os::Processor& processor_;
  std::optional<Found> found_;
};

}  // namespace qdix::cpu
