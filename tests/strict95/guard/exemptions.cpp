#include "tests/strict95/guard/exemptions.h"

#include <algorithm>

namespace qdix::strict95 {

namespace {

struct Exemption {
  Rule rule;
  const char* function;
  /// Part of the violation's text.
  const char* text;
  const char* reason;
};

constexpr Exemption kExemptions[] = {
    {Rule::kBalance, "ExitProcess", "registry keys left",
     "the reading of the processor leaves its keys open, as it always did"},
};

}  // namespace

bool IsExempt(const Violation& violation) {
  return std::any_of(std::begin(kExemptions), std::end(kExemptions), [&violation](const Exemption& one) {
    return one.rule == violation.rule && std::string(one.function) == violation.function &&
           violation.text.find(one.text) != std::string::npos;
  });
}

}  // namespace qdix::strict95
