// The dialogs of files and folders of the real system, owned by the main window. Not part of the bundle that
// every program gets: what shows no such dialog does not load the system's library of them.
#pragma once

#include <windows.h>

#include "os/file_dialogs.h"

namespace qdix::os::win32 {

class Win32FileDialogs final : public FileDialogs {
 public:
  [[nodiscard]] std::string GetOpenFileNameA(const FileQuestion& question) override;
  [[nodiscard]] std::string SHBrowseForFolderA(const std::string& title, const std::string& folder) override;

  /// The window that is disabled while a dialog is open; null for none.
  void SetOwner(HWND window) { owner_ = window; }

 private:
  HWND owner_ = nullptr;
};

}  // namespace qdix::os::win32
