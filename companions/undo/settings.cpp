#include "undo/settings.h"

#include <array>

#include "base/text.h"
#include "shell/registry_key.h"
#include "shell/registry_paths.h"

namespace qdix::undo {

namespace {

/// Stands for an entry that is missing; nobody writes such a text.
constexpr const char* kMissing = "\x01";

}  // namespace

bool Settings::HasRecord() const {
  return !ReadText(shell::kMachineKey, tuning::kRecordMarker).value_or("").empty();
}

bool Settings::HasBackup() const { return IsFile(BackupPath()); }

bool Settings::IsFile(const std::string& path) const {
  const std::uint32_t attributes = system_.files.GetFileAttributesA(path.c_str());
  return attributes != os::kInvalidFileAttributes && (attributes & os::kFileAttributeDirectory) == 0;
}

Before Settings::ReadBefore(const Entry& entry) const {
  if (entry.value_name != nullptr) {
    const auto recorded = ReadText(shell::kMachineKey, entry.value_name);
    if (recorded.has_value()) return FromRecord(entry, recorded);
  }
  if (!entry.IsInSystemIni()) return {};
  const std::string backup = BackupPath();
  if (!IsFile(backup)) return {};
  auto text = ReadEntry(entry, backup.c_str());
  // A file that another program holds for a moment reads as if it had no entries, and what the backup does
  // not have is offered for removal.
  if (!text.has_value()) text = ReadEntry(entry, backup.c_str());
  return FromBackup(text);
}

std::optional<std::string> Settings::ReadNow(const Entry& entry) const {
  if (entry.IsInSystemIni()) return ReadEntry(entry, tuning::kSystemIni);
  const auto name = ReadText(tuning::kTemplatesKey, tuning::kUnnamedValue);
  return name.value_or("").empty() ? std::nullopt : name;
}

std::optional<std::string> Settings::ReadText(const char* path, const char* value_name) const {
  return shell::RegistryKey::Open(system_.registry, os::kHkeyLocalMachine, path, os::kKeyQueryValue)
      .ReadText(value_name);
}

std::optional<std::string> Settings::ReadEntry(const Entry& entry, const char* file) const {
  // One character more than an entry may have shows that it was cut.
  std::array<char, kLongestText + 2> buffer{};
  const std::uint32_t copied = system_.profile_files.GetPrivateProfileStringA(
      entry.section, entry.key, kMissing, buffer.data(), buffer.size(), file);
  std::string text(base::CutAtNul({buffer.data(), copied}));
  if (text == kMissing) return std::nullopt;
  return text;
}

void Settings::PutBack(const Entry& entry, const Before& before) {
  if (entry.IsInSystemIni()) {
    if (before.text.has_value()) {
      system_ini_.WriteIniText(entry.section, entry.key, *before.text, tuning::kSystemIni);
    } else {
      system_ini_.DeleteIniValue(entry.section, entry.key, tuning::kSystemIni);
    }
    return;
  }
  if (before.text.has_value()) {
    module_registry_.WriteRegistryText(os::kHkeyLocalMachine, tuning::kTemplatesKey, tuning::kUnnamedValue,
                                       *before.text);
  } else {
    module_registry_.DeleteRegistryValue(os::kHkeyLocalMachine, tuning::kTemplatesKey, tuning::kUnnamedValue);
  }
}

/// What the system keeps of system.ini in memory would otherwise be written over the copy later.
bool Settings::RestoreWholeFile() {
  system_.profile_files.WritePrivateProfileStringA(nullptr, nullptr, nullptr, tuning::kSystemIni);
  const std::string folder = system_ini_.WindowsFolder();
  return system_.files.CopyFileA((folder + tuning::kSystemBackup).c_str(),
                                 (folder + tuning::kSystemIni).c_str());
}

std::string Settings::BackupPath() const { return system_ini_.WindowsFolder() + tuning::kSystemBackup; }

}  // namespace qdix::undo
