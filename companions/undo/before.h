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
  };

  Known known = Known::kNot;
  /// Nothing where there was no entry.
  std::optional<std::string> text{};
  /// What a record that cannot be put back holds.
  std::string unusable{};

  [[nodiscard]] bool IsKnown() const { return known != Known::kNot; }
};

/// What the text of the record says of an entry; nothing stands for a value that is missing or no text. The
/// backup is not asked.
[[nodiscard]] Before FromRecord(const Entry& entry, const std::optional<std::string>& recorded);

/// The same of the backup's entry; nothing stands for none.
[[nodiscard]] Before FromBackup(const std::optional<std::string>& text);

/// True where the entry stands as it was before; `before` is known, nothing stands for no entry.
[[nodiscard]] bool StandsAsBefore(const Entry& entry, const Before& before,
                                  const std::optional<std::string>& now);

/// "(none)", "(empty)", or the text in at most `most` characters, without control characters.
[[nodiscard]] std::string Shown(const std::optional<std::string>& text, std::size_t most);

/// The text of the column of what was before.
[[nodiscard]] std::string ShownBefore(const Before& before, std::size_t most);

/// "[vcache] MinFileCache" and its like.
[[nodiscard]] std::string NameOf(const Entry& entry);

}  // namespace qdix::undo
