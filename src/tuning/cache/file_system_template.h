// The file-system templates in the registry: sizes of the caches of file names and folders for several kinds
// of machine, one of them the program's own. Keys are below HKEY_LOCAL_MACHINE.
#pragma once

namespace qdix::tuning {

/// Its unnamed value names the active template.
inline constexpr const char* kTemplatesKey = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates";
inline constexpr const char* kOwnTemplate = "Quondix";
/// Its unnamed value is the caption of the template.
inline constexpr const char* kOwnTemplateKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\FS Templates\\Quondix";
/// Entries of the two caches, four bytes each.
inline constexpr const char* kNameCacheValue = "NameCache";
inline constexpr const char* kPathCacheValue = "PathCache";
inline constexpr const char* kUnnamedValue = "";

}  // namespace qdix::tuning
