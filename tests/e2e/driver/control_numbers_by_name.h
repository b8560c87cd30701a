// Where a control of the shipped program stands: its number and its tab, from the same screens that the
// program is made of.
#pragma once

#include <string>

namespace qdix::e2e {

struct ControlAddress {
  int number = 0;
  /// Index of its tab, or -1 for what stands on no tab.
  int tab = -1;
};

/// The address of a control by its name; number 0 where there is none.
[[nodiscard]] ControlAddress AddressOf(const std::string& name);

}  // namespace qdix::e2e
