// Shows the processor's name and clock in a label.
#pragma once

#include <string_view>

#include "cpu/processor_information.h"
#include "screens/quondix_screen.h"

namespace qdix::cpu {

class CpuSpeed {
 public:
  CpuSpeed(ProcessorInformation& information, screens::QuondixScreen& screen)
      : information_(information), screen_(screen) {}

  /// Shows the name and clock. If the first source does not know the clock, shows the clock of the second
  /// source alone. Shows nothing if neither knows it.
  void CPUSPEED();

  /// Returns the part before the first NUL character, or the whole text if there is none.
  [[nodiscard]] static std::string_view StripZero(std::string_view sInput);

 private:
  ProcessorInformation& information_;
  screens::QuondixScreen& screen_;
};

}  // namespace qdix::cpu
