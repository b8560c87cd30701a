// Determines the processor's name and clock by asking the processor itself.
#pragma once

#include <optional>

#include "cpu/processor_information.h"
#include "cpu/processor_name.h"

namespace qdix::cpu {

class ProcessorIdentification final : public ProcessorInformation {
 public:
  /// The clock is measured once, for this long. The high-resolution timer of these systems ticks 1.19 times
  /// per microsecond, and reading it takes a few microseconds. Over 10 ms the error is less than a
  /// thousandth.
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
  /// Asks the processor on the first call only.
  const Found& IdentifiedProcessor();

  os::Processor& processor_;
  std::optional<Found> found_;
};

}  // namespace qdix::cpu
