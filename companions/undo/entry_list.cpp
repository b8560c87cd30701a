#include "undo/entry_list.h"

#include <algorithm>

#include "base/concat.h"
#include "base/text.h"

namespace qdix::undo {

namespace {

/// Maximum number of characters of a text in a question.
constexpr std::size_t kQuestionCharacters = 60;

/// Row of the file-system template.
constexpr std::size_t kTemplateRow = 3;
static_assert(!kEntries[kTemplateRow].IsInSystemIni());

const char* ReasonOfRemoval(Before::Known known) {
  switch (known) {
    case Before::Known::kFromBackup:
      return "remove (not in backup)";
    case Before::Known::kFromItsName:
      return "remove (not recorded)";
    default:
      return "remove";
  }
}

/// Returns one line of the question.
std::string ActionText(const Entry& entry, const Before& before) {
  const std::string name = NameOf(entry) + ": ";
  if (!before.text.has_value()) return name + ReasonOfRemoval(before.known);
  return base::Concat({name, "put back ", Shown(before.text, kQuestionCharacters),
                       before.known == Before::Known::kFromBackup ? " (from backup)" : ""});
}

}  // namespace

EntryList::EntryList(host::Boxes& boxes, UndoScreen& screen, Settings& settings, tuning::Restart& restart)
    : boxes_(boxes), screen_(screen), settings_(settings), restart_(restart) {
  screen_.cmdPutBack.OnClick = ui::Handler::To<&EntryList::cmdPutBack_Click>(*this);
  for (EntryRow* const row : screen_.Rows()) row->box.OnClick = ui::Handler::To<&EntryList::Box_Click>(*this);
}

void EntryList::Show() {
  // Writing an entry would create a system.ini with only that entry and hide the fact that the file is
  // missing.
  const bool has_system_ini = settings_.SystemIniState() != IniState::kMissing;
  for (std::size_t row = 0; row < kEntries.size(); ++row) {
    State& state = states_[row];
    state.before = settings_.StateBefore(row);
    state.now = settings_.ReadNow(kEntries[row]);
    state.can_be_put_back = state.before.IsKnown() && !IsAsBefore(state.before, state.now) &&
                            (has_system_ini || !kEntries[row].IsInSystemIni());
    ShowRow(row);
  }
}

void EntryList::ShowRow(std::size_t row) {
  EntryRow& shown = *screen_.Rows()[row];
  const State& state = states_[row];
  const bool is_from_backup = state.before.known == Before::Known::kFromBackup;
  shown.before.SetCaption(ShownBefore(state.before, is_from_backup ? kBackupCharacters : kBeforeCharacters));
  shown.now.SetCaption(Shown(state.now, kNowCharacters));
  shown.box.SetEnabled(state.can_be_put_back);
  if (!state.can_be_put_back) shown.box.SetTicked(false);
}

void EntryList::TickCertain() {
  for (std::size_t row = 0; row < kEntries.size(); ++row) {
    const State& state = states_[row];
    screen_.Rows()[row]->box.SetTicked(state.can_be_put_back && !state.before.IsUncertain());
  }
}

bool EntryList::ChooseOwnTemplate() {
  const State& state = states_[kTemplateRow];
  if (!state.can_be_put_back || state.now != tuning::kOwnTemplate) return false;
  screen_.Template.box.SetTicked(true);
  return true;
}

base::Status EntryList::Box_Click() {
  const Choice chosen = Chosen();
  screen_.cmdPutBack.SetEnabled(std::find(chosen.begin(), chosen.end(), true) != chosen.end());
  return base::kDone;
}

EntryList::Choice EntryList::Chosen() {
  Choice chosen{};
  for (std::size_t row = 0; row < kEntries.size(); ++row) chosen[row] = screen_.Rows()[row]->box.Ticked();
  return chosen;
}

/// Reads everything again first: another program may have changed the settings, and the question must match
/// their current state.
base::Status EntryList::cmdPutBack_Click() {
  ReadAgain();
  const Choice chosen = Chosen();
  if (!screen_.cmdPutBack.Enabled()) return base::kDone;
  const bool agrees = boxes_.Agrees(Question(chosen), os::kMbIconQuestion | os::kMbDefaultButton2);
  if (!agrees || screen_.Window.Unloaded()) return base::kDone;
  const States earlier = states_;
  PutBack(chosen);
  ReadAgain();
  NameFailures(chosen);
  const bool is_changed = !std::equal(states_.begin(), states_.end(), earlier.begin(),
                                      [](const State& a, const State& b) { return a.now == b.now; });
  if (is_changed && !screen_.Window.Unloaded()) restart_.Offer();
  return base::kDone;
}

std::string EntryList::Question(const Choice& chosen) const {
  std::string question = "Q-DIX Undo will make these changes:\r\n\r\n";
  for (std::size_t row = 0; row < kEntries.size(); ++row) {
    if (chosen[row])
      question += base::Concat({ActionText(kEntries[row], states_[row].before), base::kLineBreak});
  }
  return question + "\r\nDo you want to put these settings back?";
}

void EntryList::PutBack(const Choice& chosen) {
  for (std::size_t row = 0; row < kEntries.size(); ++row) {
    if (chosen[row]) settings_.PutBack(kEntries[row], states_[row].before);
  }
  settings_.FlushSystemIni();
}

/// An entry that was not written, or that was changed again at once, still differs.
void EntryList::NameFailures(const Choice& chosen) {
  std::string names;
  for (std::size_t row = 0; row < kEntries.size(); ++row) {
    if (chosen[row] && states_[row].can_be_put_back)
      names += base::Concat({NameOf(kEntries[row]), base::kLineBreak});
  }
  if (names.empty()) return;
  boxes_.Warn(base::Concat({"These settings could not be put back:\r\n\r\n", names,
                            "\r\nPlease make sure that system.ini is not write-protected, and try again."}));
}

}  // namespace qdix::undo
