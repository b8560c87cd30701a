#include "cpu/cpu_speed.h"

#include <string>

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"

namespace qdix::cpu {

namespace {

std::string_view Text(const TextBuffer& buffer) {
  return CpuSpeed::StripZero({buffer.data(), buffer.size()});
}

}  // namespace

std::string_view CpuSpeed::StripZero(std::string_view sInput) { return base::CutAtNul(sInput); }

void CpuSpeed::CPUSPEED() {
  TextBuffer speed{};
  TextBuffer vendor{};
  TextBuffer description{};
  TextBuffer signature{};
  information_.GetProcessorNormSpeed(speed);
  information_.GetProcessor(vendor, description, signature);
  const std::int32_t mhz = base::ToInt32(base::ParseLeadingNumber(Text(speed))).ValueOr(0);
  if (mhz != 0) {
    screen_.lblCPU.SetCaption(base::Concat({"CPU : ", Text(description), "  ", base::TextOf(mhz), " MHz"}));
    return;
  }
  screen_.lblCPU.SetCaption(
      base::Concat({"CPU Speed : ", base::TextOf(information_.cpunormspeed(0)), " MHz"}));
  if (information_.cpunormspeed(0) == 0) screen_.lblCPU.SetCaption("");
}

}  // namespace qdix::cpu
