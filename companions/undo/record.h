// The record that Q-DIX made before its first change, as last read.
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
  /// `values` is in the order of kEntries. A value is empty if it is missing or not a text.
  Record(bool is_taken, Values values) : is_taken_(is_taken), values_(std::move(values)) {}

  [[nodiscard]] static Record Read(os::Registry& registry);

  /// True if Q-DIX began to make the record. Its values may still be missing.
  [[nodiscard]] bool IsTaken() const { return is_taken_; }
  [[nodiscard]] bool HasValues() const;
  /// True if every value that is always written is there. Any other value that is missing was then missing in
  /// system.ini, or had a single character.
  [[nodiscard]] bool IsComplete() const;
  /// Returns the recorded text of the entry with this index.
  [[nodiscard]] const std::optional<std::string>& Value(std::size_t entry) const { return values_[entry]; }

 private:
  bool is_taken_ = false;
  Values values_{};
};

}  // namespace qdix::undo
