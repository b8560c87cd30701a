// The second way back: all of system.ini as it was before the first change.
#pragma once

#include "base/callback.h"
#include "os/system.h"
#include "tuning/restart.h"
#include "ui/application.h"
#include "undo/settings.h"
#include "undo/undo_screen.h"

namespace qdix::undo {

class WholeFile {
 public:
  WholeFile(const os::System& system, const ui::Application& application, UndoScreen& screen,
            Settings& settings, tuning::Restart& restart);

  /// Looks whether there is a record with a backup to copy, and shows it.
  void Read();

  /// "Restore Whole File...".
  base::Status cmdRestore_Click();

  /// The file was replaced or the attempt failed: what the window shows of it is out of date.
  base::Callback<void()> OnTried;

 private:
  const os::System& system_;
  const ui::Application& application_;
  UndoScreen& screen_;
  Settings& settings_;
  tuning::Restart& restart_;
};

}  // namespace qdix::undo
