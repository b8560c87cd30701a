#include "os/win32/win32_drives.h"

#include <windows.h>

#include <string_view>

#include "os/win32/late_binding.h"
#include "os/win32/suppressed_disk_errors.h"

namespace qdix::os::win32 {

namespace {

/// True if the root has its trailing backslash. Later systems read a bare "C:" as the current folder of that
/// drive.
bool IsWhole(std::string_view root) { return root.ends_with('\\'); }

}  // namespace

std::int32_t Win32Drives::GetDiskFreeSpaceExA(const char* root, DiskBytes& bytes) {
  const ExtendedQuery query = FindExtendedQuery();
  if (query == nullptr || !IsWhole(root)) return 0;
  const SuppressedDiskErrors quiet;
  ULARGE_INTEGER available{};
  ULARGE_INTEGER total{};
  ULARGE_INTEGER total_free{};
  if (query(root, &available, &total, &total_free) == 0) return 0;
  bytes = {.available = available.QuadPart, .total = total.QuadPart, .total_free = total_free.QuadPart};
  return 1;
}

std::int32_t Win32Drives::GetDiskFreeSpaceA(const char* root, DiskClusters& clusters) {
  if (!IsWhole(root)) return 0;
  const SuppressedDiskErrors quiet;
  DWORD sectors_per_cluster = 0;
  DWORD bytes_per_sector = 0;
  DWORD free_clusters = 0;
  DWORD total_clusters = 0;
  if (::GetDiskFreeSpaceA(root, &sectors_per_cluster, &bytes_per_sector, &free_clusters, &total_clusters) ==
      0) {
    return 0;
  }
  clusters = {.sectors_per_cluster = sectors_per_cluster,
              .bytes_per_sector = bytes_per_sector,
              .free_clusters = free_clusters,
              .total_clusters = total_clusters};
  return 1;
}

std::uint32_t Win32Drives::GetDriveTypeA(const char* root) { return ::GetDriveTypeA(root); }

std::uint32_t Win32Drives::GetLogicalDriveStringsA(std::uint32_t room, char* buffer) {
  return ::GetLogicalDriveStringsA(room, buffer);
}

std::int32_t Win32Drives::GetVolumeInformationA(const char* root, std::uint32_t& flags) {
  const SuppressedDiskErrors quiet;
  DWORD found_flags = 0;
  if (::GetVolumeInformationA(root, nullptr, 0, nullptr, nullptr, &found_flags, nullptr, 0) == 0) return 0;
  flags = found_flags;
  return 1;
}

}  // namespace qdix::os::win32
