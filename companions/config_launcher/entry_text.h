// The texts of an entry: what may stand in them, and what a file gives.
#pragma once

#include <string>
#include <string_view>

#include "launcher/launcher_file.h"
#include "os/files.h"
#include "os/shell_files.h"

namespace qdix::config_launcher {

/// True where the text of a field cannot be shown as it is.
[[nodiscard]] bool HasControlCharacters(std::string_view text);

/// The text as it is shown: up to the first NUL, other control characters as blanks, none of these at either
/// end.
[[nodiscard]] std::string Cleaned(std::string_view text);
[[nodiscard]] launcher::LauncherEntry Cleaned(const launcher::LauncherEntry& entry);

/// The command line that starts a file: its path, in quotation marks where it has blanks.
[[nodiscard]] std::string CommandLineOf(const std::string& path);

/// A folder as the launcher takes it: without quotation marks, which no path holds, and blanks at the ends.
[[nodiscard]] std::string FolderText(std::string_view folder);

/// False for what the launcher cannot make the current folder because it begins with no drive letter: a
/// network folder, for example. No folder is none that it has to change to.
[[nodiscard]] bool HasDriveLetter(std::string_view folder);

/// True for a name that the menu shows as a dividing line.
[[nodiscard]] bool IsDividingLine(std::string_view name);

/// Equal but for the case of letters, as Windows compares names and paths.
[[nodiscard]] bool IsSameEntry(const launcher::LauncherEntry& a, const launcher::LauncherEntry& b);

/// True for the extensions of what Windows 95 can start by a command line: exe, com, bat, pif.
[[nodiscard]] bool IsProgram(std::string_view path);

/// The entry of a file, cleaned. Its name is cut to what an entry takes, its other texts are not. The system
/// tells where the characters of a path begin.
[[nodiscard]] launcher::LauncherEntry EntryOfFile(os::Files& files, const std::string& path);

/// The entry of a shortcut, by the name that the shortcut itself has: the launcher can start what it leads
/// to, not the shortcut.
[[nodiscard]] launcher::LauncherEntry EntryOfShortcut(os::Files& files, const std::string& path,
                                                      const os::Shortcut& shortcut);

[[nodiscard]] bool IsShortcut(std::string_view path);

/// True where no text of the entry is longer than a record holds.
[[nodiscard]] bool Fits(const launcher::LauncherEntry& entry);

}  // namespace qdix::config_launcher
