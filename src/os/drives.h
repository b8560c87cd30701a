// The machine's drives. Roots are texts such as "C:\" and are passed on unchanged. Querying a volume whose
// drive is not ready shows no system message box.
#pragma once

#include <cstdint>

namespace qdix::os {

inline constexpr std::uint32_t kDriveFixed = 3;

/// What the classic query reports about a volume.
struct DiskClusters {
  std::uint32_t sectors_per_cluster = 0;
  std::uint32_t bytes_per_sector = 0;
  std::uint32_t free_clusters = 0;
  std::uint32_t total_clusters = 0;
};

/// What the extended query reports about a volume, in bytes.
struct DiskBytes {
  std::uint64_t available = 0;
  std::uint64_t total = 0;
  std::uint64_t total_free = 0;
};

class Drives {
 public:
  /// Returns 1 and the figures. Returns 0 if the volume cannot be queried, the root has no trailing
  /// backslash, or the system (the first Windows 95) lacks the query.
  [[nodiscard]] virtual std::int32_t GetDiskFreeSpaceExA(const char* root, DiskBytes& bytes) = 0;

  /// Returns 1 and the figures, or 0 if the volume cannot be queried or the root has no trailing backslash.
  /// Windows 95 reports at most 2 GB.
  [[nodiscard]] virtual std::int32_t GetDiskFreeSpaceA(const char* root, DiskClusters& clusters) = 0;

  /// Returns the drive type: 0 unknown, 1 no such root, 2 removable, 3 fixed, 4 network, 5 CD-ROM, 6 RAM
  /// disk.
  [[nodiscard]] virtual std::uint32_t GetDriveTypeA(const char* root) = 0;

  /// Writes the roots, each with its NUL, and a final NUL. Returns the length without the final NUL. If the
  /// buffer is too small, writes nothing and returns the size needed.
  [[nodiscard]] virtual std::uint32_t GetLogicalDriveStringsA(std::uint32_t room, char* buffer) = 0;

  /// Returns 1 and the flags of the file system, or 0.
  [[nodiscard]] virtual std::int32_t GetVolumeInformationA(const char* root, std::uint32_t& flags) = 0;

 protected:
  ~Drives() = default;
};

}  // namespace qdix::os
