// Single entries of system.ini, and its backup before the program's first change.
#pragma once

#include <cstdint>
#include <string>

#include "os/files.h"
#include "os/profile_files.h"

namespace qdix::tuning {

inline constexpr const char* kSystemIni = "system.ini";
/// Its copy beside it, made before the program's first change. One that could not be replaced then is older.
inline constexpr const char* kSystemBackup = "system.qdix";
inline constexpr const char* kVcacheSection = "vcache";
inline constexpr const char* k386EnhSection = "386Enh";

class SystemIni {
 public:
  /// An entry's text, cut at 254 characters, and the number of characters that the system copied.
  struct Entry {
    std::string text;
    std::uint32_t copied = 0;

    /// One character is what a missing entry reads as; an entry of a single one is taken for missing.
    [[nodiscard]] bool ReadsAsMissing() const { return copied == 1; }
  };

  SystemIni(os::ProfileFiles& profile_files, os::Files& files)
      : profile_files_(profile_files), files_(files) {}

  /// The entry as it is, "0" where it is missing.
  [[nodiscard]] Entry ReadIniText(const char* section, const char* key) const;
  /// The leading number of the entry, 0 where there is none.
  [[nodiscard]] double ReadIniValue(const char* section, const char* key) const;

  /// Writes an entry. A refusal is passed over.
  void WriteIniText(const char* section, const char* key, const std::string& text, const char* file);
  /// Writes a number in decimal. A refusal is passed over.
  void WriteIniValue(const char* section, const char* key, std::int32_t value, const char* file);
  /// Removes an entry. A refusal is passed over.
  void DeleteIniValue(const char* section, const char* key, const char* file);

  /// Copies system.ini to system.qdix beside it, over an earlier one. A failure is passed over, and leaves no
  /// file, the earlier one, or a part.
  void BackupSystemINI();

  /// The Windows directory with a backslash at its end.
  [[nodiscard]] std::string WindowsFolder() const;

 private:
  os::ProfileFiles& profile_files_;
  os::Files& files_;
};

}  // namespace qdix::tuning
