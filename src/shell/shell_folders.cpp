#include "shell/shell_folders.h"

namespace qdix::shell {

namespace {

constexpr std::uint16_t kRenameFlags = os::kFofSilent | os::kFofNoConfirmation;
constexpr std::uint16_t kCopyFlags = kRenameFlags | os::kFofNoConfirmMkDir;

/// Returns the names, each with its NUL, and the NUL that ends the list.
std::string NameList(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += name + '\0';
  return list + '\0';
}

}  // namespace

std::string SpecialFolderPath(os::ShellFiles& shell_files, int number) {
  std::string folder = shell_files.SpecialFolder(number);
  if (!folder.empty() && folder.back() != '\\') folder += '\\';
  return folder;
}

void RenameFile(os::ShellFiles& shell_files, const std::string& from, const std::string& to) {
  shell_files.SHFileOperationA(os::kFoRename, NameList({from}), NameList({to}), kRenameFlags);
}

void CopyFilesTo(os::ShellFiles& shell_files, const std::vector<std::string>& paths,
                 const std::string& folder) {
  shell_files.SHFileOperationA(os::kFoCopy, NameList(paths), NameList({folder}), kCopyFlags);
}

}  // namespace qdix::shell
