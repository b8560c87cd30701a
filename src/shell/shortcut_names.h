// Names of the shortcuts to this program.
#pragma once

namespace qdix::shell {

/// The shortcut on the desktop and in the StartUp folder.
inline constexpr const char* kShortcutName = "Quondix.lnk";
/// Follows the program's file name when the shell names a shortcut to a file.
inline constexpr const char* kShortcutOfFile = ".exe.lnk";

}  // namespace qdix::shell
