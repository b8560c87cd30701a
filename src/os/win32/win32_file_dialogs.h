// Implements `FileDialogs` on Windows. The main window owns the dialogs. Not part of the `System` that every
// program gets: a program without such dialogs does not load their library.
#pragma once

#include <windows.h>

#include "os/file_dialogs.h"

namespace qdix::os::win32 {

class Win32FileDialogs final : public FileDialogs {
 public:
  [[nodiscard]] std::string GetOpenFileNameA(const OpenFileRequest& question) override;
  [[nodiscard]] std::string SHBrowseForFolderA(const std::string& title, const std::string& folder) override;

  /// Sets the window that is disabled while a dialog is open; null for none.
  void SetOwner(HWND window) { owner_ = window; }

 private:
  HWND owner_ = nullptr;
};

}  // namespace qdix::os::win32
