// The record of the system's settings before the program's first change. Its values are texts in the
// program's machine-wide key.
#pragma once

namespace qdix::tuning {

/// Not empty once the record has been made.
inline constexpr const char* kRecordMarker = "FirstSave";
/// Leading numbers of the disk cache sizes; 0 if there were none.
inline constexpr const char* kRecordedMinCache = "OldMinCache";
inline constexpr const char* kRecordedMaxCache = "OldMaxCache";
inline constexpr const char* kRecordedChunk = "OldChunk";
/// The active file-system template; empty if there was none.
inline constexpr const char* kRecordedTemplate = "OldFileCache";
/// The previous entries of the swap file. Missing entries and entries of a single character are not recorded.
inline constexpr const char* kRecordedPagingDrive = "OldPagingDrive";
inline constexpr const char* kRecordedMinPagingFile = "OldMinPagingFileSize";
inline constexpr const char* kRecordedMaxPagingFile = "OldMaxPagingFileSize";

}  // namespace qdix::tuning
