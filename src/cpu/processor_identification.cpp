#include "cpu/processor_identification.h"

#include <algorithm>
#include <string_view>

#include "base/numbers.h"

namespace qdix::cpu {

namespace {

void Put(TextBuffer& buffer, std::string_view text) {
  const std::size_t length = std::min(text.size(), buffer.size() - 1);
  std::copy_n(text.begin(), length, buffer.begin());
  buffer[length] = '\0';
}

/// Cycles per microsecond are MHz.
std::int32_t ClockMhz(const os::CycleCount& count) {
  if (count.microseconds == 0) return 0;
  return base::ToInt32(static_cast<double>(count.cycles) / static_cast<double>(count.microseconds))
      .ValueOr(0);
}

}  // namespace

const ProcessorIdentification::Found& ProcessorIdentification::IdentifiedProcessor() {
  if (!found_) {
    Found found{.identity = Identify(processor_)};
    if (found.identity.has_time_stamp_counter)
      found.clock_mhz = ClockMhz(processor_.CountCycles(kMeasuringMs));
    found_ = found;
  }
  return *found_;
}

void ProcessorIdentification::GetProcessorNormSpeed(TextBuffer& speed) {
  Put(speed, base::TextOf(IdentifiedProcessor().clock_mhz));
}

void ProcessorIdentification::GetProcessor(TextBuffer& vendor, TextBuffer& description,
                                           TextBuffer& signature) {
  const ProcessorIdentity& identity = IdentifiedProcessor().identity;
  Put(vendor, identity.vendor);
  Put(description, NameOf(identity));
  Put(signature, SignatureOf(identity));
}

std::int32_t ProcessorIdentification::cpunormspeed(std::int32_t /*reserved*/) {
  return IdentifiedProcessor().clock_mhz;
}

}  // namespace qdix::cpu
