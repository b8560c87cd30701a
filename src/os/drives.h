// The machine's drives. Roots are texts such as "C:\"; each call sees the root as its caller gives it. What
// is asked about a volume brings no box of the system where its drive is not ready.
#pragma once

#include <cstdint>

namespace qdix::os {

inline constexpr std::uint32_t kDriveFixed = 3;

/// What the classic query tells of a volume.
struct DiskClusters {
  std::uint32_t sectors_per_cluster = 0;
  std::uint32_t bytes_per_sector = 0;
  std::uint32_t free_clusters = 0;
  std::uint32_t total_clusters = 0;
};

/// What the extended query tells of a volume, in bytes.
struct DiskBytes {
  std::uint64_t available = 0;
  std::uint64_t total = 0;
  std::uint64_t total_free = 0;
};

class Drives {
 public:
  virtual ~Drives() = default;

  /// 1 and the figures, or 0 where the volume cannot be asked, the root lacks its backslash, or the system
  /// (the first Windows 95) lacks the query.
  [[nodiscard]] virtual std::int32_t GetDiskFreeSpaceExA(const char* root, DiskBytes& bytes) = 0;

  /// 1 and the figures, or 0 where the volume cannot be asked or the root lacks its backslash. Windows 95
  /// tells at most 2 GB.
  [[nodiscard]] virtual std::int32_t GetDiskFreeSpaceA(const char* root, DiskClusters& clusters) = 0;

  /// 0 unknown, 1 no such root, 2 removable, 3 fixed, 4 network, 5 CD-ROM, 6 RAM disk.
  [[nodiscard]] virtual std::uint32_t GetDriveTypeA(const char* root) = 0;

  /// Writes the roots, each with its NUL, and one NUL more. Returns the length without that last one; where
  /// the room is too small it writes nothing and returns the room that is needed.
  [[nodiscard]] virtual std::uint32_t GetLogicalDriveStringsA(std::uint32_t room, char* buffer) = 0;

  /// 1 and the flags of the file system, or 0.
  [[nodiscard]] virtual std::int32_t GetVolumeInformationA(const char* root, std::uint32_t& flags) = 0;
};

}  // namespace qdix::os
