// The drives of the simulated machine.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "os/drives.h"
#include "os/simulated/call_log.h"

namespace qdix::os::simulated {

struct Drive {
  std::uint32_t type = kDriveFixed;
  std::uint64_t total_bytes = 0;
  std::uint64_t free_bytes = 0;
  /// Flags of the file system; nullopt if the volume cannot be queried.
  std::optional<std::uint32_t> flags = 0U;
};

class SimulatedDrives final : public Drives {
 public:
  explicit SimulatedDrives(CallLog& log) : log_(log) {}

  std::int32_t GetDiskFreeSpaceExA(const char* root, DiskBytes& bytes) override;
  std::int32_t GetDiskFreeSpaceA(const char* root, DiskClusters& clusters) override;
  std::uint32_t GetDriveTypeA(const char* root) override;
  std::uint32_t GetLogicalDriveStringsA(std::uint32_t room, char* buffer) override;
  std::int32_t GetVolumeInformationA(const char* root, std::uint32_t& flags) override;

  /// Adds a drive with a letter from 'A' to 'Z'.
  void Add(char letter, const Drive& drive) { drives_[letter] = drive; }
  /// Simulates a system without the extended query.
  void RemoveExtendedQuery() { has_extended_query_ = false; }

 private:
  /// Returns the drive that a root names, in either case, with or without a trailing backslash.
  [[nodiscard]] const Drive* Find(const std::string& root) const;

  /// Returns the drive only if the root has its trailing backslash.
  [[nodiscard]] const Drive* FindWhole(const std::string& root) const;

  CallLog& log_;
  std::map<char, Drive> drives_;
  bool has_extended_query_ = true;
};

}  // namespace qdix::os::simulated
