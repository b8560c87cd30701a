// Names of the shortcuts that lead to this program.
#pragma once

namespace qdix::shell {

/// On the desktop and in the StartUp folder.
inline constexpr const char* kShortcutName = "Quondix.lnk";
/// Behind the program's file name, as the shell names a shortcut that it makes of a file.
inline constexpr const char* kShortcutOfFile = ".exe.lnk";

}  // namespace qdix::shell
