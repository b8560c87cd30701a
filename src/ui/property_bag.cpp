#include "ui/property_bag.h"

#include <algorithm>

namespace qdix::ui {

std::vector<PropertyBag::Entry>::const_iterator PropertyBag::PositionOf(std::string_view name) const {
  return std::lower_bound(entries_.begin(), entries_.end(), name,
                          [](const Entry& entry, std::string_view wanted) { return entry.name < wanted; });
}

bool PropertyBag::Keeps(std::string_view name) const {
  const auto position = PositionOf(name);
  return position != entries_.end() && position->name == name;
}

std::int32_t PropertyBag::ReadProperty(std::string_view name, std::int32_t default_value) const {
  return Keeps(name) ? PositionOf(name)->value : default_value;
}

void PropertyBag::WriteProperty(std::string_view name, std::int32_t value, std::int32_t default_value) {
  if (Keeps(name)) entries_.erase(PositionOf(name));
  if (value != default_value) entries_.insert(PositionOf(name), Entry{name, value});
}

}  // namespace qdix::ui
