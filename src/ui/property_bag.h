// The properties of a drawing control by name, as a form designer keeps them. Has no list of valid properties
// and stores only in memory.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace qdix::ui {

/// Names are compared exactly. They must be literals, because only their addresses are kept. A property equal
/// to its default is not kept.
class PropertyBag {
 public:
  /// Returns the kept value, or the default.
  [[nodiscard]] std::int32_t ReadProperty(std::string_view name, std::int32_t default_value) const;

  /// Replaces the value kept under this name.
  void WriteProperty(std::string_view name, std::int32_t value, std::int32_t default_value);

  [[nodiscard]] bool Keeps(std::string_view name) const;

 private:
  struct Entry {
    std::string_view name;
    std::int32_t value;
  };

  /// Returns the position of the entry with this name, or the position at which to insert it.
  [[nodiscard]] std::vector<Entry>::const_iterator PositionOf(std::string_view name) const;

  // Sorted by name.
  std::vector<Entry> entries_;
};

}  // namespace qdix::ui
