#include "tuning/swap/drive_info.h"

#include <array>

#include "base/concat.h"
#include "base/numbers.h"
#include "base/text.h"

namespace qdix::tuning {

namespace {

constexpr const char* kAskedRoot = "C:\\";

/// Room for 19 root names. On a machine with more drives the list is empty.
constexpr std::uint32_t kListRoom = 78;
/// Limits the loop, whatever the buffer holds.
constexpr int kMaxPasses = 27;
constexpr std::size_t kRootLength = 3;

/// Volume flags of this value or more mark a compressed volume.
constexpr std::int32_t kCompressedFlag = 32768;

constexpr std::uint32_t kRemovable = 2;
constexpr std::array<std::string_view, 7> kTypeTexts{
    "The drive type cannot be determined.",
    "The root directory does not exist.",
    "Removable drive.",
    "Hard drive; can not be removed.",
    "Remote (network) drive.",
    "CD-ROM drive.",
    "RAM disk.",
};

base::Result<std::int32_t> Product(std::int32_t a, std::int32_t b) {
  return base::ToInt32(static_cast<double>(a) * b);
}

}  // namespace

bool DriveInfo::HasDiskFreeSpaceEx() {
  os::DiskBytes bytes;
  return drives_.GetDiskFreeSpaceExA(kAskedRoot, bytes) != 0;
}

std::int32_t DriveInfo::GetDiskSpace(const std::string& root, DriveSpaceInfo& info) {
  const std::string whole_root = root.ends_with(':') ? root + '\\' : root;
  if (!use_disk_free_space_ex_) return QueryClusters(whole_root, info).Ok() ? 1 : 0;
  os::DiskBytes bytes;
  if (drives_.GetDiskFreeSpaceExA(whole_root.c_str(), bytes) != 1) return 0;
  info.total_bytes = static_cast<std::int64_t>(bytes.total);
  info.free_bytes = static_cast<std::int64_t>(bytes.total_free);
  info.available_bytes = static_cast<std::int64_t>(bytes.available);
  info.used_bytes = info.total_bytes - info.free_bytes;
  return 1;
}

base::Status DriveInfo::QueryClusters(const std::string& root, DriveSpaceInfo& info) {
  os::DiskClusters clusters;
  const std::int32_t result = drives_.GetDiskFreeSpaceA(root.c_str(), clusters);
  info.sectors_per_cluster = static_cast<std::int32_t>(clusters.sectors_per_cluster);
  info.bytes_per_sector = static_cast<std::int32_t>(clusters.bytes_per_sector);
  info.free_clusters = static_cast<std::int32_t>(clusters.free_clusters);
  info.total_clusters = static_cast<std::int32_t>(clusters.total_clusters);
  if (result != 1) return base::kDeviceUnavailable;
  const base::Result<std::int32_t> cluster_bytes = Product(info.sectors_per_cluster, info.bytes_per_sector);
  if (!cluster_bytes.Ok()) return cluster_bytes.Error();
  const base::Result<std::int32_t> total = Product(cluster_bytes.Value(), info.total_clusters);
  if (!total.Ok()) return total.Error();
  info.total_bytes = total.Value();
  const base::Result<std::int32_t> free = Product(cluster_bytes.Value(), info.free_clusters);
  if (!free.Ok()) return free.Error();
  info.free_bytes = free.Value();
  info.available_bytes = info.free_bytes;
  info.used_bytes = info.total_bytes - info.free_bytes;
  return base::kDone;
}

double DriveInfo::FreeMegabytes(const std::string& root) {
  DriveSpaceInfo info;
  GetDiskSpace(root, info);
  return FreeMegabytes(info);
}

double DriveInfo::FreeMegabytes(const DriveSpaceInfo& info) {
  return static_cast<double>(info.free_bytes) / 1000000 / 1.024;
}

std::string DriveInfo::GetDriveTypeText(const std::string& root) {
  const std::uint32_t type = drives_.GetDriveTypeA(root.c_str());
  if (type == kRemovable && (root.starts_with('a') || root.starts_with('b'))) return "Floppy drive.";
  return type < kTypeTexts.size() ? std::string(kTypeTexts[type]) : std::string();
}

std::string DriveInfo::GetDriveList() {
  std::string buffer(kListRoom, ' ');
  if (drives_.GetLogicalDriveStringsA(kListRoom, buffer.data()) == 0) return {};
  return std::string(base::Trim(buffer));
}

std::string DriveInfo::StripNull(std::string& text) {
  const std::size_t end = text.find('\0');
  if (end == std::string::npos) return {};
  std::string piece = text.substr(0, end);
  text.erase(0, end + 1);
  return piece;
}

void DriveInfo::FillDriveCombo(ui::ListControl& list) {
  list.Clear();
  std::string drives = GetDriveList();
  const std::string end_of_list(1, '\0');
  for (int pass = 0; pass < kMaxPasses && drives != end_of_list; ++pass) {
    const std::string root = base::UpperAscii(StripNull(drives).substr(0, kRootLength));
    if (drives_.GetDriveTypeA(root.c_str()) == os::kDriveFixed) AddDrive(list, root);
  }
}

void DriveInfo::AddDrive(ui::ListControl& list, const std::string& root) {
  std::uint32_t flags = 0;
  const std::int32_t told = drives_.GetVolumeInformationA(root.c_str(), flags);
  DriveSpaceInfo info;
  GetDiskSpace(root, info);
  if (static_cast<std::int32_t>(flags) >= kCompressedFlag) return;
  if (told != 1) {
    list.AddItem(root);
    return;
  }
  list.AddItem(
      base::Concat({root, " ", base::ShortestText(base::WholePart(FreeMegabytes(info))), "MB Free"}));
}

}  // namespace qdix::tuning
