// The texts of an entry: which characters are allowed, and how a file becomes an entry.
#pragma once

#include <string>
#include <string_view>

#include "launcher/launcher_file.h"
#include "os/files.h"
#include "os/shell_files.h"

namespace qdix::config_launcher {

/// True if the text of a field cannot be displayed unchanged.
[[nodiscard]] bool HasControlCharacters(std::string_view text);

/// Returns the text for display: up to the first NUL, with other control characters replaced by blanks, and
/// trimmed.
[[nodiscard]] std::string Cleaned(std::string_view text);
[[nodiscard]] launcher::LauncherEntry Cleaned(const launcher::LauncherEntry& entry);

/// Returns the command line that starts a file: its path, in quotation marks if it contains blanks.
[[nodiscard]] std::string CommandLineOf(const std::string& path);

/// Returns a folder in the form that the launcher needs: without quotation marks, which no path contains, and
/// trimmed.
[[nodiscard]] std::string FolderText(std::string_view folder);

/// False for a folder that the launcher cannot make the current one because it does not begin with a drive
/// letter, for example a network folder. True for an empty folder, because the launcher then does not change
/// folders.
[[nodiscard]] bool HasDriveLetter(std::string_view folder);

/// True for a name that the menu shows as a dividing line.
[[nodiscard]] bool IsDividingLine(std::string_view name);

/// True if all texts are equal without regard to case, as Windows compares names and paths.
[[nodiscard]] bool IsSameEntry(const launcher::LauncherEntry& a, const launcher::LauncherEntry& b);

/// True for the extensions of files that Windows 95 can start from a command line: exe, com, bat, pif.
[[nodiscard]] bool IsProgram(std::string_view path);

/// Returns the entry for a file, cleaned. Cuts only the name to the length of its field. `files` says where
/// the characters of a path begin.
[[nodiscard]] launcher::LauncherEntry EntryOfFile(os::Files& files, const std::string& path);

/// Returns the entry for the target of a shortcut, under the shortcut's own name: the launcher can start the
/// target but not the shortcut.
[[nodiscard]] launcher::LauncherEntry EntryOfShortcut(os::Files& files, const std::string& path,
                                                      const os::Shortcut& shortcut);

[[nodiscard]] bool IsShortcut(std::string_view path);

/// True if no text of the entry is too long for its field in a record.
[[nodiscard]] bool Fits(const launcher::LauncherEntry& entry);

}  // namespace qdix::config_launcher
