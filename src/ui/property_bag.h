// The properties of a drawing control under their names, as a designer keeps them. Knows nothing of which
// properties there are, and stores nothing outside of memory.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace qdix::ui {

/// Names are compared exactly and must be literals (they are kept by reference). A property that has its
/// default is not kept.
class PropertyBag {
 public:
  /// The kept value, or the default.
  [[nodiscard]] std::int32_t ReadProperty(std::string_view name, std::int32_t default_value) const;

  /// Replaces what was kept under this name.
  void WriteProperty(std::string_view name, std::int32_t value, std::int32_t default_value);

  [[nodiscard]] bool Keeps(std::string_view name) const;

 private:
  struct Entry {
    std::string_view name;
    std::int32_t value;
  };

  /// Where an entry of this name stands, or would have to.
  [[nodiscard]] std::vector<Entry>::const_iterator PositionOf(std::string_view name) const;

  // Sorted by name.
  std::vector<Entry> entries_;
};

}  // namespace qdix::ui
