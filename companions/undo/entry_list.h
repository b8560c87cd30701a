// The rows of the window: what each entry was and is, which of them are chosen, and their putting back.
#pragma once

#include <array>
#include <string>

#include "base/callback.h"
#include "os/system.h"
#include "tuning/restart.h"
#include "ui/application.h"
#include "undo/settings.h"
#include "undo/undo_screen.h"

namespace qdix::undo {

class EntryList {
 public:
  EntryList(const os::System& system, const ui::Application& application, UndoScreen& screen,
            Settings& settings, tuning::Restart& restart);

  /// Shows what `Settings` found and what the system holds now. A row that is as before, or of which nothing
  /// is known, cannot be chosen.
  void Show();
  /// Ticks the rows that can be chosen, but for removals that are uncertain: those are the user's to tick.
  void ChooseCertain();
  /// Ticks the row of the template where Q-DIX's own is in force and can be put back; true where it is.
  bool ChooseOwnTemplate();

  /// Reads everything again and has it shown.
  base::Callback<void()> ReadAgain;

  /// "Put Back".
  base::Status cmdPutBack_Click();
  /// A box was ticked or cleared.
  base::Status Box_Click();

 private:
  struct State {
    Before before;
    std::optional<std::string> now;
    bool can_be_put_back = false;
  };
  using States = std::array<State, kEntries.size()>;
  using Choice = std::array<bool, kEntries.size()>;

  void ShowRow(std::size_t row);
  [[nodiscard]] Choice Chosen();
  [[nodiscard]] std::string Question(const Choice& chosen) const;
  void PutBack(const Choice& chosen);
  void NameFailures(const Choice& chosen);

  const os::System& system_;
  const ui::Application& application_;
  UndoScreen& screen_;
  Settings& settings_;
  tuning::Restart& restart_;
  States states_;
};

}  // namespace qdix::undo
