// Implements `ShellFiles` on Windows.
#pragma once

#include <windows.h>

#include "os/shell_files.h"

namespace qdix::os::win32 {

class Win32ShellFiles final : public ShellFiles {
 public:
  std::string SpecialFolder(int number) override;
  bool SHFileOperationA(std::uint32_t operation, const std::string& from, const std::string& to,
                        std::uint16_t flags) override;
  void SHAddToRecentDocs(std::uint32_t kind, const std::string& path) override;
  std::optional<Shortcut> ReadShortcut(const std::string& path) override;
  bool WriteShortcut(const std::string& path, const Shortcut& shortcut) override;

  /// Sets the window that owns the shell's dialogs; null for none.
  void SetOwner(HWND owner) { owner_ = owner; }

 private:
  HWND owner_ = nullptr;
};

}  // namespace qdix::os::win32
