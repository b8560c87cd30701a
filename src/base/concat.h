// Joins texts.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace qdix::base {

/// Returns the parts one after the other. A chain of three or more texts with `+` makes a text for each step
/// and needs twice the code.
[[nodiscard]] std::string Concat(std::initializer_list<std::string_view> parts);

}  // namespace qdix::base
