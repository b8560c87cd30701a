// The second way back: all of system.ini as it was when it was copied.
#pragma once

#include "base/callback.h"
#include "os/system.h"
#include "tuning/restart.h"
#include "ui/application.h"
#include "undo/entry_list.h"
#include "undo/settings.h"
#include "undo/undo_screen.h"

namespace qdix::undo {

class WholeFile {
 public:
  WholeFile(const os::System& system, const ui::Application& application, UndoScreen& screen,
            Settings& settings, EntryList& entry_list, tuning::Restart& restart);

  /// Enables the button where `Settings` found a whole backup.
  void Show();

  /// "Restore Whole File...".
  base::Status cmdRestore_Click();

  /// Reads everything again and has it shown.
  base::Callback<void()> ReadAgain;

 private:
  [[nodiscard]] std::string Question() const;
  void TellSuccess(const std::string& kept_name);
  void TellFailure(const Replacement& replacement);

  const os::System& system_;
  const ui::Application& application_;
  UndoScreen& screen_;
  Settings& settings_;
  EntryList& entry_list_;
  tuning::Restart& restart_;
};

}  // namespace qdix::undo
