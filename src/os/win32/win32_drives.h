// Implements `Drives` on Windows. Forwards, except for two differences between Windows versions.
#pragma once

#include "os/drives.h"

namespace qdix::os::win32 {

class Win32Drives final : public Drives {
 public:
  [[nodiscard]] std::int32_t GetDiskFreeSpaceExA(const char* root, DiskBytes& bytes) override;
  [[nodiscard]] std::int32_t GetDiskFreeSpaceA(const char* root, DiskClusters& clusters) override;
  [[nodiscard]] std::uint32_t GetDriveTypeA(const char* root) override;
  [[nodiscard]] std::uint32_t GetLogicalDriveStringsA(std::uint32_t room, char* buffer) override;
  [[nodiscard]] std::int32_t GetVolumeInformationA(const char* root, std::uint32_t& flags) override;
};

}  // namespace qdix::os::win32
