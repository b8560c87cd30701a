#include "undo/record.h"

#include <algorithm>

#include "registry/registry_key.h"
#include "registry/registry_paths.h"

namespace qdix::undo {

namespace {

bool IsAlwaysRecorded(const Entry& entry) {
  return entry.recorded == Recorded::kAsNumber || entry.recorded == Recorded::kAsTextOrEmpty;
}

}  // namespace

Record Record::Read(os::Registry& registry) {
  const auto key =
      registry::RegistryKey::Open(registry, os::kHkeyLocalMachine, registry::kMachineKey, os::kKeyQueryValue);
  if (key.ReadText(tuning::kRecordMarker).value_or("").empty()) return {};
  Values values;
  for (std::size_t entry = 0; entry < kEntries.size(); ++entry) {
    const char* const name = kEntries[entry].value_name;
    if (name != nullptr) values[entry] = key.ReadText(name);
  }
  return {true, values};
}

bool Record::HasValues() const {
  return std::any_of(values_.begin(), values_.end(), [](const auto& value) { return value.has_value(); });
}

bool Record::IsComplete() const {
  for (std::size_t entry = 0; entry < kEntries.size(); ++entry) {
    if (IsAlwaysRecorded(kEntries[entry]) && !values_[entry].has_value()) return false;
  }
  return true;
}

}  // namespace qdix::undo
