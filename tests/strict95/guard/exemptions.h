// Violations that the guard ignores, with the reasons.
#pragma once

#include <string>

#include "tests/strict95/guard/report.h"

namespace qdix::strict95 {

struct Violation {
  const std::string& program;
  Rule rule;
  const char* function;
  const std::string& text;
  /// The function of the program that made the call.
  const std::string& place;
};

[[nodiscard]] bool IsExempt(const Violation& violation);

}  // namespace qdix::strict95
