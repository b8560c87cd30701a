// The shell's own folders, and its operations on files without questions.
#pragma once

#include <string>
#include <vector>

#include "os/shell_files.h"

namespace qdix::shell {

/// Path of one of the shell's folders with a backslash at its end; empty where the shell has none, and then
/// nothing must be built on it.
[[nodiscard]] std::string SpecialFolderPath(os::ShellFiles& shell_files, int number);

/// Gives a file another name. Asks and reports nothing.
void RenameFile(os::ShellFiles& shell_files, const std::string& from, const std::string& to);

/// Copies files into a folder, over what is there. Asks and reports nothing.
void CopyFilesTo(os::ShellFiles& shell_files, const std::vector<std::string>& paths,
                 const std::string& folder);

}  // namespace qdix::shell
