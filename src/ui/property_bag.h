// The properties of a drawing control under their names, as a designer keeps them. A property that has its
// default is not kept.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace qdix::ui {

class PropertyBag {
 public:
  /// The kept value, or the default. Names are compared exactly and must be literals.
  [[nodiscard]] std::int32_t ReadProperty(std::string_view name, std::int32_t default_value) const;
  void WriteProperty(std::string_view name, std::int32_t value, std::int32_t default_value);

  [[nodiscard]] bool Keeps(std::string_view name) const;

 private:
  struct Entry {
    std::string_view name;
    std::int32_t value;
  };
  std::vector<Entry> entries_;
};

}  // namespace qdix::ui
