// The rows of the window: the previous and current value of each entry, which entries are chosen, and how
// they are put back.
#pragma once

#include <array>
#include <string>

#include "base/callback.h"
#include "host/boxes.h"
#include "tuning/restart.h"
#include "undo/settings.h"
#include "undo/undo_screen.h"

namespace qdix::undo {

class EntryList {
 public:
  EntryList(host::Boxes& boxes, UndoScreen& screen, Settings& settings, tuning::Restart& restart);

  /// Shows what `Settings` found and the current values. A row cannot be chosen if its entry has its previous
  /// value or the previous value is unknown.
  void Show();
  /// Ticks the rows that can be chosen, except uncertain removals, which the user must tick.
  void TickCertain();
  /// If Q-DIX's own template is active and can be put back, ticks its row and returns true.
  bool ChooseOwnTemplate();

  /// Reads everything again and shows it.
  base::Callback<void()> ReadAgain;

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

  host::Boxes& boxes_;
  UndoScreen& screen_;
  Settings& settings_;
  tuning::Restart& restart_;
  States states_;
};

}  // namespace qdix::undo
