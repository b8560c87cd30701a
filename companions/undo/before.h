// The previous value of an entry, before Q-DIX's first change, as far as it is known.
#pragma once

#include <optional>
#include <string>

#include "undo/entries.h"

namespace qdix::undo {

/// Maximum number of characters that are read from an entry and that a record can restore.
inline constexpr std::size_t kMaxTextLength = 254;

struct Before {
  enum class Known : unsigned char {
    /// Neither the record nor the backup has the value, or the value cannot be put back.
    kNot,
    kFromRecord,
    kFromBackup,
    /// The template is Q-DIX's own, so previously there was a different one or none.
    kFromItsName,
  };

  Known known = Known::kNot;
  /// Empty if there was no entry.
  std::optional<std::string> text{};
  /// A value that cannot be put back.
  std::string unusable{};
  /// False for a size of which only the leading number is known.
  bool is_exact = true;

  [[nodiscard]] bool IsKnown() const { return known != Known::kNot; }
  /// True for a removal that rests only on the entry's absence from the backup, or on the name of the
  /// template.
  [[nodiscard]] bool IsUncertain() const {
    return known == Known::kFromItsName || (known == Known::kFromBackup && !text.has_value());
  }
};

/// Returns the previous value according to the record. `recorded` is empty if the value is missing or not a
/// text.
[[nodiscard]] Before FromRecord(const Entry& entry, const std::optional<std::string>& recorded);

/// Returns the previous value according to the backup. `text` is empty if the backup has no such entry.
[[nodiscard]] Before FromBackup(const std::optional<std::string>& text);

/// Combines the record with a backup of the same time. The record is complete if it has every value that is
/// always recorded.
[[nodiscard]] Before FromBoth(const Entry& entry, const std::optional<std::string>& recorded,
                              bool is_record_complete, const std::optional<std::string>& backup_text);

/// False if the backup's entry cannot be the one that was recorded: the backup and the record are of
/// different times.
[[nodiscard]] bool Agree(const Entry& entry, const std::optional<std::string>& recorded,
                         bool is_record_complete, const std::optional<std::string>& backup_text);

/// True if the entry has its previous value. `before` must be known; it has no text if there was no entry.
[[nodiscard]] bool IsAsBefore(const Before& before, const std::optional<std::string>& now);

/// Returns "(none)", "(empty)", or the text cut to `most` characters, with blanks in place of control
/// characters.
[[nodiscard]] std::string Shown(const std::optional<std::string>& text, std::size_t max_length);

/// Returns the text for the "Before" column.
[[nodiscard]] std::string ShownBefore(const Before& before, std::size_t max_length);

/// Returns, for example, "[vcache] MinFileCache".
[[nodiscard]] std::string NameOf(const Entry& entry);

}  // namespace qdix::undo
