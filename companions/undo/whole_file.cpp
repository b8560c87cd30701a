#include "undo/whole_file.h"

namespace qdix::undo {

WholeFile::WholeFile(const os::System& system, const ui::Application& application, UndoScreen& screen,
                     Settings& settings, tuning::Restart& restart)
    : system_(system), application_(application), screen_(screen), settings_(settings), restart_(restart) {
  screen_.cmdRestore.OnClick = ui::Handler::To<&WholeFile::cmdRestore_Click>(*this);
}

void WholeFile::Read() {
  const bool has_record = settings_.HasRecord();
  const bool has_backup = settings_.HasBackup();
  screen_.lblBackup.SetCaption(
      has_backup
          ? "Backup: system.qdix in the Windows folder, the copy of system.ini that was made before the "
            "first change."
          : "There is no backup of system.ini (system.qdix in the Windows folder).");
  screen_.cmdRestore.SetEnabled(has_record && has_backup);
}

base::Status WholeFile::cmdRestore_Click() {
  const int answer = system_.dialogs.MessageBoxA(
      "All of system.ini will be replaced by system.qdix, the copy that was made before the first "
      "change.\r\n\r\n"
      "Every other change that was made to system.ini since then will be lost, also those by Windows and by "
      "other programs.\r\n\r\n"
      "Do you want to replace system.ini?",
      application_.Title(), os::kMbYesNo | os::kMbIconExclamation | os::kMbDefaultButton2);
  if (answer != os::kIdYes || screen_.Window.Unloaded()) return base::kDone;
  const bool is_replaced = settings_.RestoreWholeFile();
  if (OnTried) OnTried();
  if (is_replaced) {
    restart_.Offer();
    return base::kDone;
  }
  system_.dialogs.MessageBoxA(
      "system.ini could not be replaced.\r\n\r\n"
      "Please make sure that it is not write-protected and that no other program has it open, and try again.",
      application_.Title(), os::kMbOk | os::kMbIconExclamation);
  return base::kDone;
}

}  // namespace qdix::undo
