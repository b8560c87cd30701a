// Windows compares paths and names of libraries without regard to case.
#pragma once

#include <algorithm>
#include <cctype>
#include <string>

namespace qdix::strict95 {

[[nodiscard]] inline std::string LowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char one) { return std::tolower(one); });
  return text;
}

}  // namespace qdix::strict95
