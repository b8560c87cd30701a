#include "ui/property_bag.h"

#include <algorithm>

namespace qdix::ui {

std::int32_t PropertyBag::ReadProperty(std::string_view name, std::int32_t default_value) const {
  for (const Entry& entry : entries_) {
    if (entry.name == name) return entry.value;
  }
  return default_value;
}

void PropertyBag::WriteProperty(std::string_view name, std::int32_t value, std::int32_t default_value) {
  std::erase_if(entries_, [name](const Entry& entry) { return entry.name == name; });
  if (value != default_value) entries_.push_back({name, value});
}

bool PropertyBag::Keeps(std::string_view name) const {
  return std::any_of(entries_.begin(), entries_.end(),
                     [name](const Entry& entry) { return entry.name == name; });
}

}  // namespace qdix::ui
