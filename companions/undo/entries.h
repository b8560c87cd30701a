// The system entries that Q-DIX changes and this program can put back.
#pragma once

#include <array>
#include <cstddef>

#include "tuning/cache/file_system_template.h"
#include "tuning/record_names.h"
#include "tuning/system_ini.h"

namespace qdix::undo {

/// How the record stores an entry.
enum class Recorded : unsigned char {
  /// The leading number of the entry; 0 if there was none.
  kAsNumber,
  /// The text of the entry; empty if there was none.
  kAsTextOrEmpty,
  /// The text of the entry; missing if the entry was missing or had a single character.
  kAsTextOrMissing,
  kNever,
};

struct Entry {
  /// Section of system.ini; null for the active file-system template in the registry.
  const char* section;
  const char* key;
  Recorded recorded;
  /// Name of the value in the record; null if there is none.
  const char* value_name;

  [[nodiscard]] constexpr bool IsInSystemIni() const { return section != nullptr; }
};

/// In the order of the rows.
inline constexpr std::array<Entry, 8> kEntries{{
    {tuning::kVcacheSection, tuning::kMinFileCacheEntry, Recorded::kAsNumber, tuning::kRecordedMinCache},
    {tuning::kVcacheSection, tuning::kMaxFileCacheEntry, Recorded::kAsNumber, tuning::kRecordedMaxCache},
    {tuning::kVcacheSection, tuning::kChunkSizeEntry, Recorded::kAsNumber, tuning::kRecordedChunk},
    {nullptr, tuning::kUnnamedValue, Recorded::kAsTextOrEmpty, tuning::kRecordedTemplate},
    {tuning::k386EnhSection, tuning::kPagingDriveEntry, Recorded::kAsTextOrMissing,
     tuning::kRecordedPagingDrive},
    {tuning::k386EnhSection, tuning::kMinPagingFileSizeEntry, Recorded::kAsTextOrMissing,
     tuning::kRecordedMinPagingFile},
    {tuning::k386EnhSection, tuning::kMaxPagingFileSizeEntry, Recorded::kAsTextOrMissing,
     tuning::kRecordedMaxPagingFile},
    {tuning::k386EnhSection, tuning::kPagingEntry, Recorded::kNever, nullptr},
}};

}  // namespace qdix::undo
