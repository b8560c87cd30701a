// The shortcut on the desktop.
#pragma once

#include "os/system.h"
#include "screens/startup_screen.h"

namespace qdix::shell {

class DesktopShortcut {
 public:
  DesktopShortcut(const os::System& system, screens::StartupScreen& screen);

  /// Has the shell make a shortcut among the recent documents, and copies that one to the desktop. Where this
  /// leaves none there, as on systems that do not make it so, it is written directly. Takes two seconds, in
  /// which events are handled.
  base::Status Command5_Click();

 private:
  /// Nothing where the shell has no folder of recent documents.
  void CopyFromRecentDocuments(const std::string& desktop);
  [[nodiscard]] bool Exists(const std::string& path) const;

  const os::System& system_;
};

}  // namespace qdix::shell
