// Which drives the machine has, and how much is free on them. Free space is shown in megabytes of 1,024,000
// bytes.
#pragma once

#include <cstdint>
#include <string>

#include "os/drives.h"
#include "ui/lists.h"

namespace qdix::tuning {

/// What is known of a volume. The first four are 0 where the extended query answered.
struct DriveSpaceInfo {
  std::int32_t sectors_per_cluster = 0;
  std::int32_t bytes_per_sector = 0;
  std::int32_t free_clusters = 0;
  std::int32_t total_clusters = 0;
  std::int64_t free_bytes = 0;
  /// Free for the user who asks.
  std::int64_t available_bytes = 0;
  std::int64_t used_bytes = 0;
  std::int64_t total_bytes = 0;
};

class DriveInfo {
 public:
  explicit DriveInfo(os::Drives& drives) : drives_(drives) {}

  /// True where the extended query works on this system.
  [[nodiscard]] bool HasDiskFreeSpaceEx();
  /// Which of the two queries GetDiskSpace makes; the classic one at first.
  void SetUseDiskFreeSpaceEx(bool use) { use_disk_free_space_ex_ = use; }

  /// 1 where the volume could be asked, else 0. The root may lack its backslash. The classic query counts in
  /// 32 bits: a volume of 2 GB and more gives 0, and the record stays as far as it was filled.
  std::int32_t GetDiskSpace(const std::string& root, DriveSpaceInfo& info);

  /// Free space in megabytes of 1,024,000 bytes, with fractions; 0 where it cannot be told.
  [[nodiscard]] double FreeMegabytes(const std::string& root);

  /// A sentence about the kind of drive. Floppy drives are known by a lower-case letter only.
  [[nodiscard]] std::string GetDriveTypeText(const std::string& root);

  /// The roots as the system lists them, each with its NUL and one NUL more; empty where they do not fit or
  /// cannot be told.
  [[nodiscard]] std::string GetDriveList();

  /// Cuts the part before the first NUL off the front; without one it gives nothing and leaves the text.
  static std::string StripNull(std::string& text);

  /// Fills a list with the fixed drives and their free space ("C:\ 1234MB Free"), compressed ones left out.
  void FillDriveCombo(ui::ListControl& list);

 private:
  [[nodiscard]] static double FreeMegabytes(const DriveSpaceInfo& info);
  base::Status QueryClusters(const std::string& root, DriveSpaceInfo& info);
  void AddDrive(ui::ListControl& list, const std::string& root);

  os::Drives& drives_;
  bool use_disk_free_space_ex_ = false;
};

}  // namespace qdix::tuning
