#include "os/simulated/simulated_drives.h"

#include <algorithm>

#include "base/text.h"

namespace qdix::os::simulated {

namespace {

constexpr std::uint32_t kBytesPerSector = 512;
constexpr std::uint32_t kSectorsPerCluster = 8;
constexpr std::uint32_t kNoSuchRoot = 1;

}  // namespace

const Drive* SimulatedDrives::Find(const std::string& root) const {
  const std::string upper = base::UpperAscii(root);
  if (upper.size() < 2 || upper.size() > 3 || upper[1] != ':') return nullptr;
  const auto found = drives_.find(upper[0]);
  return found == drives_.end() ? nullptr : &found->second;
}

const Drive* SimulatedDrives::FindWhole(const std::string& root) const {
  return root.ends_with('\\') ? Find(root) : nullptr;
}

std::int32_t SimulatedDrives::GetDiskFreeSpaceExA(const char* root, DiskBytes& bytes) {
  const Drive* const drive = FindWhole(root);
  if (log_.RecordAndFail("GetDiskFreeSpaceExA", root) || !has_extended_query_ || drive == nullptr) return 0;
  bytes = {.available = drive->free_bytes, .total = drive->total_bytes, .total_free = drive->free_bytes};
  return 1;
}

std::int32_t SimulatedDrives::GetDiskFreeSpaceA(const char* root, DiskClusters& clusters) {
  const Drive* const drive = FindWhole(root);
  if (log_.RecordAndFail("GetDiskFreeSpaceA", root) || drive == nullptr) return 0;
  constexpr std::uint64_t kClusterBytes = kBytesPerSector * kSectorsPerCluster;
  clusters = {.sectors_per_cluster = kSectorsPerCluster,
              .bytes_per_sector = kBytesPerSector,
              .free_clusters = static_cast<std::uint32_t>(drive->free_bytes / kClusterBytes),
              .total_clusters = static_cast<std::uint32_t>(drive->total_bytes / kClusterBytes)};
  return 1;
}

std::uint32_t SimulatedDrives::GetDriveTypeA(const char* root) {
  log_.Record("GetDriveTypeA", root);
  const Drive* const drive = Find(root);
  return drive == nullptr ? kNoSuchRoot : drive->type;
}

std::uint32_t SimulatedDrives::GetLogicalDriveStringsA(std::uint32_t room, char* buffer) {
  if (log_.RecordAndFail("GetLogicalDriveStringsA", std::to_string(room))) return 0;
  std::string roots;
  for (const auto& [letter, drive] : drives_) roots += std::string(1, letter) + ":\\" + '\0';
  if (roots.size() + 1 > room) return static_cast<std::uint32_t>(roots.size() + 1);
  roots += '\0';
  std::copy(roots.begin(), roots.end(), buffer);
  return static_cast<std::uint32_t>(roots.size() - 1);
}

std::int32_t SimulatedDrives::GetVolumeInformationA(const char* root, std::uint32_t& flags) {
  const Drive* const drive = Find(root);
  if (log_.RecordAndFail("GetVolumeInformationA", root) || drive == nullptr || !drive->flags) return 0;
  flags = *drive->flags;
  return 1;
}

}  // namespace qdix::os::simulated
