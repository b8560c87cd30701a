// Decimal numbers of topics and steps.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace qdix::help_viewer {

/// Parses a number of one to nine decimal digits and nothing else.
[[nodiscard]] inline std::optional<std::int32_t> ParseNumber(std::string_view text) {
  constexpr std::size_t kMaxDigits = 9;
  if (text.empty() || text.size() > kMaxDigits) return std::nullopt;
  std::int32_t number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  return number;
}

}  // namespace qdix::help_viewer
