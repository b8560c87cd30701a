// The shortcut on the desktop.
#pragma once

#include "os/system.h"
#include "screens/startup_screen.h"

namespace qdix::shell {

class DesktopShortcut {
 public:
  DesktopShortcut(const os::System& system, screens::StartupScreen& screen);

  /// Has the shell make a shortcut in the recent documents and copies it to the desktop. If no shortcut
  /// results, as on systems that do not make it this way, writes it directly. Takes two seconds, during which
  /// events are handled.
  base::Status Command5_Click();

 private:
  /// Does nothing if the shell has no folder of recent documents.
  void CopyFromRecentDocuments(const std::string& desktop);
  [[nodiscard]] bool Exists(const std::string& path) const;

  const os::System& system_;
};

}  // namespace qdix::shell
