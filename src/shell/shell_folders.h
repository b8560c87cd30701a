// The shell's own folders, and its file operations without prompts.
#pragma once

#include <string>
#include <vector>

#include "os/shell_files.h"

namespace qdix::shell {

/// Returns the path of a shell folder with a trailing backslash. Empty if the shell has no such folder; the
/// caller must then not build a path on it.
[[nodiscard]] std::string SpecialFolderPath(os::ShellFiles& shell_files, int number);

/// Renames a file. Prompts for nothing and reports nothing.
void RenameFile(os::ShellFiles& shell_files, const std::string& from, const std::string& to);

/// Copies files to a folder and overwrites existing ones. Prompts for nothing and reports nothing.
void CopyFilesTo(os::ShellFiles& shell_files, const std::vector<std::string>& paths,
                 const std::string& folder);

}  // namespace qdix::shell
