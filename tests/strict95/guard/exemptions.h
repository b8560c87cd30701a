// What the guard sees and lets pass, with the reason.
#pragma once

#include <string>

#include "tests/strict95/guard/report.h"

namespace qdix::strict95 {

struct Violation {
  const std::string& program;
  Rule rule;
  const char* function;
  const std::string& text;
  /// Of the program, in which it happened.
  const std::string& place;
};

[[nodiscard]] bool IsExempt(const Violation& violation);

}  // namespace qdix::strict95
