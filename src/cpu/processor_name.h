// Decodes what a processor reports about itself into a name that users know. The same registers give the same
// answers on every machine.
#pragma once

#include <cstdint>
#include <string>

#include "os/processor.h"

namespace qdix::cpu {

/// What the identification leaves report.
struct ProcessorIdentity {
  /// 3 or 4 if the processor does not identify itself; the other fields are then empty.
  int generation = 4;
  /// The twelve-character vendor string, such as "GenuineIntel".
  std::string vendor;
  std::uint32_t family = 0;
  std::uint32_t model = 0;
  std::uint32_t stepping = 0;
  /// Brand index, 0 for none. Some makers use it to tell two processors of the same model apart.
  std::uint32_t brand_index = 0;
  /// The brand text that the processor reports, without extra spaces; empty if it has none.
  std::string brand_text;
  bool has_time_stamp_counter = false;
};

[[nodiscard]] ProcessorIdentity Identify(os::Processor& processor);

/// Returns the processor's own brand text; without one, the name of its model; without that, maker, family
/// and model.
[[nodiscard]] std::string NameOf(const ProcessorIdentity& identity);

/// Returns for example "Family 5 Model 2 Stepping 12", or an empty text for a processor that does not
/// identify itself.
[[nodiscard]] std::string SignatureOf(const ProcessorIdentity& identity);

}  // namespace qdix::cpu
