// What the program asks about the processor: its name and its clock. One implementation reads the processor
// itself; tests supply their own answers.
#pragma once

#include <array>
#include <cstdint>

namespace qdix::cpu {

/// A NUL-terminated text.
using TextBuffer = std::array<char, 255>;

class ProcessorInformation {
 public:
  /// Writes the clock in MHz as decimal text, or "0" if it is unknown.
  virtual void GetProcessorNormSpeed(TextBuffer& speed) = 0;

  /// Writes the maker, the name that users know the processor by, and the family, model and stepping that it
  /// reports. Anything unknown is an empty text.
  virtual void GetProcessor(TextBuffer& vendor, TextBuffer& description, TextBuffer& signature) = 0;

  /// Returns the clock in MHz, or 0 if it is unknown. The argument is reserved.
  [[nodiscard]] virtual std::int32_t cpunormspeed(std::int32_t reserved) = 0;

 protected:
  ~ProcessorInformation() = default;
};

}  // namespace qdix::cpu
