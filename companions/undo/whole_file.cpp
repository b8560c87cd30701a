#include "undo/whole_file.h"

#include "base/concat.h"
#include "undo/state_text.h"

namespace qdix::undo {

namespace {

/// Returns the commands that change to the drive and folder. `folder` ends with a backslash; only a root
/// folder keeps it.
std::string CommandsToEnter(const std::string& folder) {
  constexpr std::size_t kRootLength = 3;
  const std::size_t first_backslash = folder.find('\\');
  const std::string_view text = folder;
  std::string_view path = text.substr(first_backslash);
  if (folder.size() > kRootLength) path.remove_suffix(1);
  return base::Concat({text.substr(0, first_backslash), "\r\ncd ", path});
}

}  // namespace

WholeFile::WholeFile(os::Clock& clock, host::Boxes& boxes, UndoScreen& screen, Settings& settings,
                     EntryList& entry_list, tuning::Restart& restart)
    : clock_(clock),
      boxes_(boxes),
      screen_(screen),
      settings_(settings),
      entry_list_(entry_list),
      restart_(restart) {
  screen_.cmdRestore.OnClick = ui::Handler::To<&WholeFile::cmdRestore_Click>(*this);
}

void WholeFile::Show() { screen_.cmdRestore.SetEnabled(settings_.TheBackup().IsWhole()); }

/// Reads everything again first: the backup may have changed, and the question must match its current state.
base::Status WholeFile::cmdRestore_Click() {
  ReadAgain();
  if (!screen_.cmdRestore.Enabled()) return base::kDone;
  const bool agrees = boxes_.Agrees(Question(), os::kMbIconExclamation | os::kMbDefaultButton2);
  if (!agrees || screen_.Window.Unloaded()) return base::kDone;
  const Replacement replacement = settings_.RestoreWholeFile();
  const bool is_done = replacement.outcome == Replacement::Outcome::kDone;
  if (is_done) settings_.OfferOwnTemplate();
  ReadAgain();
  if (!is_done) {
    ReportFailedRestore(replacement);
    return base::kDone;
  }
  ReportRestore(replacement.kept_name);
  if (!screen_.Window.Unloaded()) restart_.Offer();
  return base::kDone;
}

std::string WholeFile::Question() const {
  const Backup& backup = settings_.TheBackup();
  const std::string date = DateOf(backup, clock_);
  std::string question = "All of system.ini will be replaced with system.qdix";
  question += date.empty() ? "." : base::Concat({", the copy dated ", date, "."});
  question +=
      "\r\n\r\nYou will lose every change made to system.ini since that copy, including those made by "
      "Windows and other programs. The current file will be kept under another name.\r\n\r\n";
  if (settings_.TheRecord().IsTaken() && !backup.agrees) {
    question += "This copy does not match the settings that Q-DIX recorded. Check its date.\r\n\r\n";
  }
  return question + "Do you want to replace system.ini?";
}

/// The commands contain no long names, which the command prompt does not know before Windows starts. Each
/// fits on one line of the message box.
void WholeFile::ReportRestore(const std::string& kept_name) {
  constexpr std::string_view kHowToGoBack =
      ".\r\n\r\nIf Windows does not start with the new one, start the computer at the command prompt and "
      "type:\r\n\r\n";
  std::string text = "system.ini has been replaced.";
  if (!kept_name.empty()) {
    text += base::Concat({" The old file is now ", kept_name, kHowToGoBack,
                          CommandsToEnter(settings_.WindowsFolder()), "\r\nattrib -r system.ini\r\ncopy /y ",
                          kept_name, " system.ini"});
  }
  if (entry_list_.ChooseOwnTemplate()) {
    text +=
        "\r\n\r\nThe file system template is still \"Quondix\". To put the old one back too, answer No to "
        "the next question and press \"Put Back\".";
  }
  boxes_.Ask(text, os::kMbOk | os::kMbIconInformation);
}

void WholeFile::ReportFailedRestore(const Replacement& replacement) {
  const std::string text =
      replacement.outcome == Replacement::Outcome::kRenamed
          ? base::Concat({"system.ini could not be replaced, and is now called ", replacement.kept_name,
                          ". Rename it to system.ini before you restart: Windows cannot start without it."})
          : "system.ini could not be replaced, and has not been changed.\r\n\r\n"
            "Please make sure that it is not write-protected, that no other program has it open and that the "
            "disk is not full, and try again.";
  boxes_.Warn(text);
}

}  // namespace qdix::undo
