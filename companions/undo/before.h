// What an entry was before the first change, as far as it is known.
#pragma once

#include <optional>
#include <string>

#include "undo/entries.h"

namespace qdix::undo {

/// Characters of an entry that are read, and that a record can put back.
inline constexpr std::size_t kLongestText = 254;

struct Before {
  enum class Known : unsigned char {
    /// Neither the record nor the backup tells, or what they hold cannot be put back.
    kNot,
    kFromRecord,
    kFromBackup,
    /// The template is Q-DIX's own, so it was another one or none.
    kFromItsName,
  };

  Known known = Known::kNot;
  /// Nothing where there was no entry.
  std::optional<std::string> text{};
  /// What cannot be put back.
  std::string unusable{};
  /// False for a size of which only the leading number is known.
  bool is_exact = true;

  [[nodiscard]] bool IsKnown() const { return known != Known::kNot; }
  /// True for a removal that nothing but the silence of the backup, or a name, speaks for.
  [[nodiscard]] bool IsUncertain() const {
    return known == Known::kFromItsName || (known == Known::kFromBackup && !text.has_value());
  }
};

/// What the text of the record says of an entry; empty where the value is missing or no text.
[[nodiscard]] Before FromRecord(const Entry& entry, const std::optional<std::string>& recorded);

/// The same of the backup's entry; empty where it has none.
[[nodiscard]] Before FromBackup(const std::optional<std::string>& text);

/// What the record and a backup of the same time say together. The record is complete where it lacks nothing
/// that is always recorded.
[[nodiscard]] Before FromBoth(const Entry& entry, const std::optional<std::string>& recorded,
                              bool is_record_complete, const std::optional<std::string>& backup_text);

/// False where the entry of the backup cannot be the one that was recorded: the two are of different times.
[[nodiscard]] bool Agree(const Entry& entry, const std::optional<std::string>& recorded,
                         bool is_record_complete, const std::optional<std::string>& backup_text);

/// True where the entry is as it was before; `before` is known, and empty where there was no entry.
[[nodiscard]] bool IsAsBefore(const Before& before, const std::optional<std::string>& now);

/// "(none)", "(empty)", or the text in at most `most` characters, without control characters.
[[nodiscard]] std::string Shown(const std::optional<std::string>& text, std::size_t most);

/// The text of the column of what was before.
[[nodiscard]] std::string ShownBefore(const Before& before, std::size_t most);

/// "[vcache] MinFileCache" and its like.
[[nodiscard]] std::string NameOf(const Entry& entry);

}  // namespace qdix::undo
