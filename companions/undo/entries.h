// The entries of the system that Q-DIX changes and that this program can put back.
#pragma once

#include <array>
#include <cstddef>

#include "tuning/cache/file_system_template.h"
#include "tuning/cache/record_names.h"
#include "tuning/cache/system_ini.h"

namespace qdix::undo {

/// How the record holds an entry.
enum class Recorded : unsigned char {
  /// The leading number of the entry; 0 where there was none.
  kAsNumber,
  /// The text of the entry; empty where there was none.
  kAsTextOrEmpty,
  /// The text of the entry; missing where the entry was missing or had a single character.
  kAsTextOrMissing,
  kNever,
};

struct Entry {
  /// Of system.ini; null for the registry's template in force.
  const char* section;
  const char* key;
  Recorded recorded;
  /// The value of the record; null where there is none.
  const char* value_name;

  [[nodiscard]] constexpr bool IsInSystemIni() const { return section != nullptr; }
};

/// In the order of the rows.
inline constexpr std::array<Entry, 8> kEntries{{
    {tuning::kVcacheSection, "MinFileCache", Recorded::kAsNumber, tuning::kRecordedMinCache},
    {tuning::kVcacheSection, "MaxFileCache", Recorded::kAsNumber, tuning::kRecordedMaxCache},
    {tuning::kVcacheSection, "ChunkSize", Recorded::kAsNumber, tuning::kRecordedChunk},
    {nullptr, tuning::kUnnamedValue, Recorded::kAsTextOrEmpty, tuning::kRecordedTemplate},
    {tuning::k386EnhSection, "PagingDrive", Recorded::kAsTextOrMissing, tuning::kRecordedPagingDrive},
    {tuning::k386EnhSection, "MinPagingFileSize", Recorded::kAsTextOrMissing, tuning::kRecordedMinPagingFile},
    {tuning::k386EnhSection, "MaxPagingFileSize", Recorded::kAsTextOrMissing, tuning::kRecordedMaxPagingFile},
    {tuning::k386EnhSection, "Paging", Recorded::kNever, nullptr},
}};

}  // namespace qdix::undo
