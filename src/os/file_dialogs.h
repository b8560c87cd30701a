// The dialogs of the system in which a user picks a file or a folder. They belong to the main window and let
// timers and other handlers run while they are open.
#pragma once

#include <string>

namespace qdix::os {

/// What the dialog of files shows.
struct FileQuestion {
  const char* title;
  /// Pairs of a text and its patterns, each ended by a NUL, the last pair by one more.
  const char* filter;
  /// The folder that is open at first; the system's choice where it is empty or there is no such folder.
  std::string folder;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;

  /// The full path of one file that is there, of a shortcut itself and not of its target; empty when the user
  /// picked none, or the dialog could not be shown.
  [[nodiscard]] virtual std::string GetOpenFileNameA(const FileQuestion& question) = 0;

  /// The path of a folder of the file system; empty when the user picked none, or the dialog could not be
  /// shown. `folder` is the one chosen at first, if there is such a folder.
  [[nodiscard]] virtual std::string SHBrowseForFolderA(const std::string& title,
                                                       const std::string& folder) = 0;
};

}  // namespace qdix::os
