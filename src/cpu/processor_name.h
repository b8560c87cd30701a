// Makes a name that users know out of what a processor tells about itself. Pure decoding: the same answers
// for the same registers on every machine.
#pragma once

#include <cstdint>
#include <string>

#include "os/processor.h"

namespace qdix::cpu {

/// What the identification leaves say.
struct ProcessorIdentity {
  /// 3 or 4 where the processor does not identify itself; the rest is empty then.
  int generation = 4;
  /// The twelve characters of the maker, such as "GenuineIntel".
  std::string vendor;
  std::uint32_t family = 0;
  std::uint32_t model = 0;
  std::uint32_t stepping = 0;
  /// Index of a brand, 0 for none; some makers tell two processors of one model apart by it.
  std::uint32_t brand_index = 0;
  /// The processor's own text, without superfluous blanks; empty where it has none.
  std::string brand_text;
  bool has_time_stamp_counter = false;
};

[[nodiscard]] ProcessorIdentity Identify(os::Processor& processor);

/// The processor's own text where it has one, else the name of its model, else maker, family and model.
[[nodiscard]] std::string NameOf(const ProcessorIdentity& identity);

/// "Family 5 Model 2 Stepping 12", or an empty text for a processor that does not identify itself.
[[nodiscard]] std::string SignatureOf(const ProcessorIdentity& identity);

}  // namespace qdix::cpu
