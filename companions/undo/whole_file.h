// The second way to undo: restores all of system.ini from the backup.
#pragma once

#include "base/callback.h"
#include "host/boxes.h"
#include "os/clock.h"
#include "tuning/restart.h"
#include "undo/entry_list.h"
#include "undo/settings.h"
#include "undo/undo_screen.h"

namespace qdix::undo {

class WholeFile {
 public:
  WholeFile(os::Clock& clock, host::Boxes& boxes, UndoScreen& screen, Settings& settings,
            EntryList& entry_list, tuning::Restart& restart);

  /// Enables the button if `Settings` found a complete backup.
  void Show();

  base::Status cmdRestore_Click();

  /// Reads everything again and shows it.
  base::Callback<void()> ReadAgain;

 private:
  [[nodiscard]] std::string Question() const;
  void ReportRestore(const std::string& kept_name);
  void ReportFailedRestore(const Replacement& replacement);

  os::Clock& clock_;
  host::Boxes& boxes_;
  UndoScreen& screen_;
  Settings& settings_;
  EntryList& entry_list_;
  tuning::Restart& restart_;
};

}  // namespace qdix::undo
