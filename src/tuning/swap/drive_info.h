// Drives of the machine and their free space. Free space is shown in megabytes of 1,024,000 bytes.
#pragma once

#include <cstdint>
#include <string>

#include "os/drives.h"
#include "ui/lists.h"

namespace qdix::tuning {

/// Properties of a volume. The first four are 0 if the extended query answered.
struct DriveSpaceInfo {
  std::int32_t sectors_per_cluster = 0;
  std::int32_t bytes_per_sector = 0;
  std::int32_t free_clusters = 0;
  std::int32_t total_clusters = 0;
  std::int64_t free_bytes = 0;
  /// Free for the current user.
  std::int64_t available_bytes = 0;
  std::int64_t used_bytes = 0;
  std::int64_t total_bytes = 0;
};

class DriveInfo {
 public:
  explicit DriveInfo(os::Drives& drives) : drives_(drives) {}

  /// True if the extended query works on this version of Windows.
  [[nodiscard]] bool HasDiskFreeSpaceEx();
  /// Selects the query that GetDiskSpace uses; initially the classic one.
  void SetUseDiskFreeSpaceEx(bool use) { use_disk_free_space_ex_ = use; }

  /// Returns 1 if the volume could be queried, otherwise 0. The root may lack its backslash. The classic
  /// query counts in 32 bits: for a volume of 2 GB or more it returns 0 and leaves the record partly filled.
  std::int32_t GetDiskSpace(const std::string& root, DriveSpaceInfo& info);

  /// Returns the free space in megabytes of 1,024,000 bytes, with fractions; 0 if it is unknown.
  [[nodiscard]] double FreeMegabytes(const std::string& root);

  /// Returns a sentence about the type of drive. Recognises floppy drives only by a lower-case letter.
  [[nodiscard]] std::string GetDriveTypeText(const std::string& root);

  /// Returns the root names as Windows lists them, each with its NUL, plus one NUL; empty if they do not fit
  /// or the query fails.
  [[nodiscard]] std::string GetDriveList();

  /// Removes the part before the first NUL from the text, with the NUL, and returns that part. Without a NUL,
  /// returns an empty string and leaves the text alone.
  static std::string StripNull(std::string& text);

  /// Fills a list with the fixed drives and their free space ("C:\ 1234MB Free"), except compressed drives.
  void FillDriveCombo(ui::ListControl& list);

 private:
  [[nodiscard]] static double FreeMegabytes(const DriveSpaceInfo& info);
  base::Status QueryClusters(const std::string& root, DriveSpaceInfo& info);
  void AddDrive(ui::ListControl& list, const std::string& root);

  os::Drives& drives_;
  bool use_disk_free_space_ex_ = false;
};

}  // namespace qdix::tuning
