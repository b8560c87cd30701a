#include "undo/state_text.h"

namespace qdix::undo {

namespace {

const char* RecordText(const Record& record, const Backup& backup) {
  if (record.HasValues()) {
    return "These settings were recorded before Q-DIX changed this computer for the first time. Tick those "
           "that "
           "are to be put back.";
  }
  if (record.IsTaken()) {
    return backup.IsWhole() ? "The record holds no values. What can be put back is taken from the backup."
                            : "The record holds no values, and there is no backup to go by.";
  }
  return backup.IsWhole()
             ? "Nothing is recorded, so single settings cannot be put back. The whole of system.ini "
               "can be."
             : "Nothing is recorded. Q-DIX records these settings before it changes one of them for "
               "the first time, so there is nothing to put back.";
}

/// Of a backup that can be read and is not whole.
const char* Fault(IniState state) {
  switch (state) {
    case IniState::kWithoutBoot:
      return "has no section [boot]";
    case IniState::kWithout386Enh:
      return "has no section [386Enh]";
    default:
      return "ends in the middle of a line";
  }
}

std::string WholeBackupText(const Backup& backup, bool is_of_another_time, os::Clock& clock) {
  std::string text = "Backup: system.qdix in the Windows folder";
  if (backup.found.has_value()) text += " (" + backup.found->dos_name + " at the command prompt)";
  const std::string date = DateOf(backup, clock);
  if (!date.empty()) text += ", system.ini as of " + date;
  text += '.';
  if (is_of_another_time) text += " It is not of the time of the record: no single setting is taken from it.";
  return text;
}

}  // namespace

std::string StateText(const Settings& settings) {
  std::string fault;
  if (settings.SystemIniState() == IniState::kMissing) fault = "is missing";
  if (settings.SystemIniState() == IniState::kWithoutBoot) fault = "has no section [boot]";
  if (fault.empty()) return RecordText(settings.TheRecord(), settings.TheBackup());
  return "Warning: system.ini " + fault + ". Windows does not start without it. " +
         (settings.TheBackup().IsWhole()
              ? "Restore the whole file before you restart."
              : "Put a whole copy of it into the Windows folder before you restart.");
}

std::string BackupText(const Backup& backup, const Record& record, os::Clock& clock) {
  switch (backup.state) {
    case IniState::kMissing:
      return "There is no backup of system.ini (system.qdix in the Windows folder).";
    case IniState::kUnreadable:
      return "system.qdix in the Windows folder cannot be read. Close other programs and start Q-DIX Undo "
             "again.";
    case IniState::kWhole:
      return WholeBackupText(backup, record.IsTaken() && !backup.agrees, clock);
    default:
      return "system.qdix in the Windows folder is damaged: it " + std::string(Fault(backup.state)) +
             ". Nothing is taken from it.";
  }
}

std::string DateOf(const Backup& backup, os::Clock& clock) {
  return backup.found.has_value() ? clock.LongDate(backup.found->changed_days) : std::string();
}

}  // namespace qdix::undo
