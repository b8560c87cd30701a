// The system dialogs in which the user picks a file or a folder. The main window owns them; timers and other
// handlers run while they are open.
#pragma once

#include <string>

namespace qdix::os {

/// What the file dialog shows.
struct OpenFileRequest {
  const char* title;
  /// Pairs of a description and its patterns, each string with its NUL, and a final NUL.
  const char* filter;
  /// The initial folder. The system chooses one if this is empty or does not exist.
  std::string folder;
};

class FileDialogs {
 public:
  /// Returns the full path of one existing file; for a shortcut, of the shortcut itself and not of its
  /// target. Empty if the user cancelled or the dialog could not be shown.
  [[nodiscard]] virtual std::string GetOpenFileNameA(const OpenFileRequest& question) = 0;

  /// Returns the path of a folder of the file system. Empty if the user cancelled or the dialog could not be
  /// shown. `folder` is selected first if it exists.
  [[nodiscard]] virtual std::string SHBrowseForFolderA(const std::string& title,
                                                       const std::string& folder) = 0;

 protected:
  ~FileDialogs() = default;
};

}  // namespace qdix::os
