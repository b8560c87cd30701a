// The record of what stood in the system before the program's first change: its values, all of them texts in
// the program's machine-wide key.
#pragma once

namespace qdix::tuning {

/// Not empty once the record was taken.
inline constexpr const char* kRecordMarker = "FirstSave";
/// Leading numbers of the sizes of the disk cache, 0 where there was none.
inline constexpr const char* kRecordedMinCache = "OldMinCache";
inline constexpr const char* kRecordedMaxCache = "OldMaxCache";
inline constexpr const char* kRecordedChunk = "OldChunk";
/// The file-system template in force, empty where none was.
inline constexpr const char* kRecordedTemplate = "OldFileCache";
/// Entries of the swap file as they were. One of a single character is not recorded, nor is a missing one.
inline constexpr const char* kRecordedPagingDrive = "OldPagingDrive";
inline constexpr const char* kRecordedMinPagingFile = "OldMinPagingFileSize";
inline constexpr const char* kRecordedMaxPagingFile = "OldMaxPagingFileSize";

}  // namespace qdix::tuning
