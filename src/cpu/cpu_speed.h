// The label with the processor's name and clock.
#pragma once

#include <string_view>

#include "cpu/processor_information.h"
#include "screens/quondix_screen.h"

namespace qdix::cpu {

class CpuSpeed {
 public:
  CpuSpeed(ProcessorInformation& information, screens::QuondixScreen& screen)
      : information_(information), screen_(screen) {}

  /// Shows name and clock; the clock alone where only the second source knows it; nothing without a clock.
  void CPUSPEED();

  /// The part before the first NUL character, or the whole text when it has none.
  [[nodiscard]] static std::string_view StripZero(std::string_view sInput);

 private:
  ProcessorInformation& information_;
  screens::QuondixScreen& screen_;
};

}  // namespace qdix::cpu
