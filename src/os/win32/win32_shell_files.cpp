#include "os/win32/win32_shell_files.h"

// shellapi.h and shlobj.h need windows.h first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
#include <shlobj.h>
// clang-format on

#include <array>

#include "os/win32/shortcut_object.h"
#include "runtime/float_control.h"

namespace qdix::os::win32 {

namespace {

static_assert(kStartupFolder == CSIDL_STARTUP && kRecentFolder == CSIDL_RECENT);
static_assert(kStartMenuFolder == CSIDL_STARTMENU && kDesktopFolder == CSIDL_DESKTOPDIRECTORY);
static_assert(kFoCopy == FO_COPY && kFoRename == FO_RENAME);
static_assert(kFofSilent == FOF_SILENT && kFofNoConfirmation == FOF_NOCONFIRMATION);
static_assert(kFofNoConfirmMkDir == FOF_NOCONFIRMMKDIR);
static_assert(kShardPath == SHARD_PATHA);

/// Frees an identifier list with the shell's allocator.
void Free(LPITEMIDLIST list) {
  IMalloc* allocator = nullptr;
  if (FAILED(SHGetMalloc(&allocator))) return;
  allocator->Free(list);
  allocator->Release();
}

}  // namespace

std::string Win32ShellFiles::SpecialFolder(int number) {
  const runtime::FloatingPointKeeper keeper;
  LPITEMIDLIST list = nullptr;
  if (FAILED(SHGetSpecialFolderLocation(owner_, number, &list)) || list == nullptr) return {};
  std::array<char, MAX_PATH> path{};
  const bool found = SHGetPathFromIDListA(list, path.data()) != FALSE;
  Free(list);
  return found ? std::string(path.data()) : std::string();
}

bool Win32ShellFiles::SHFileOperationA(std::uint32_t operation, const std::string& from,
                                       const std::string& to, std::uint16_t flags) {
  const runtime::FloatingPointKeeper keeper;
  SHFILEOPSTRUCTA request{};
  request.hwnd = owner_;
  request.wFunc = operation;
  request.pFrom = from.c_str();
  request.pTo = to.c_str();
  request.fFlags = flags;
  return ::SHFileOperationA(&request) == 0 && request.fAnyOperationsAborted == FALSE;
}

void Win32ShellFiles::SHAddToRecentDocs(std::uint32_t kind, const std::string& path) {
  const runtime::FloatingPointKeeper keeper;
  ::SHAddToRecentDocs(kind, path.c_str());
}

std::optional<Shortcut> Win32ShellFiles::ReadShortcut(const std::string& path) {
  const runtime::FloatingPointKeeper keeper;
  ShortcutObject link;
  return link.Load(path) ? link.Read() : std::nullopt;
}

bool Win32ShellFiles::WriteShortcut(const std::string& path, const Shortcut& shortcut) {
  const runtime::FloatingPointKeeper keeper;
  ShortcutObject link;
  return link.Set(shortcut) && link.Save(path);
}

}  // namespace qdix::os::win32
