#include "base/text.h"

#include <algorithm>

namespace qdix::base {

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view CutAtNul(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string UpperAscii(std::string_view text) {
  std::string upper(text);
  for (char& letter : upper) letter = UpperAscii(letter);
  return upper;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return UpperAscii(x) == UpperAscii(y); });
}

}  // namespace qdix::base
