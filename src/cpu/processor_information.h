// What the program asks about the processor: its name and its clock. One implementation reads the processor
// itself; tests bring their own answers.
#pragma once

#include <array>
#include <cstdint>

namespace qdix::cpu {

/// A text that ends at its first NUL character.
using TextBuffer = std::array<char, 255>;

class ProcessorInformation {
 public:
  virtual ~ProcessorInformation() = default;

  /// Writes the clock in MHz as a decimal text; "0" where it is not known.
  virtual void GetProcessorNormSpeed(TextBuffer& speed) = 0;

  /// Writes who made the processor, the name that users know it by, and family, model and stepping as it
  /// tells them itself. What is not known is an empty text.
  virtual void GetProcessor(TextBuffer& vendor, TextBuffer& description, TextBuffer& signature) = 0;

  /// The clock in MHz, 0 where it is not known. The argument is reserved.
  [[nodiscard]] virtual std::int32_t cpunormspeed(std::int32_t reserved) = 0;
};

}  // namespace qdix::cpu
