// The record that Q-DIX took before its first change, as it was when it was last read.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "os/registry.h"
#include "undo/entries.h"

namespace qdix::undo {

class Record {
 public:
  using Values = std::array<std::optional<std::string>, kEntries.size()>;

  Record() = default;
  /// `values` in the order of kEntries; nothing for a value that is missing or no text.
  Record(bool is_taken, Values values) : is_taken_(is_taken), values_(std::move(values)) {}

  [[nodiscard]] static Record Read(os::Registry& registry);

  /// Q-DIX began to take it; its values may be missing all the same.
  [[nodiscard]] bool IsTaken() const { return is_taken_; }
  [[nodiscard]] bool HasValues() const;
  /// True where it has every value that is always written. What it lacks then was missing in system.ini, or
  /// had a single character.
  [[nodiscard]] bool IsComplete() const;
  /// The recorded text of the entry with this index.
  [[nodiscard]] const std::optional<std::string>& Value(std::size_t entry) const { return values_[entry]; }

 private:
  bool is_taken_ = false;
  Values values_{};
};

}  // namespace qdix::undo
