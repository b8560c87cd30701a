#include "undo/state_text.h"

#include "base/concat.h"

namespace qdix::undo {

namespace {

const char* RecordText(const Record& record, const Backup& backup) {
  if (record.HasValues()) {
    return "Q-DIX recorded these settings before it first changed this computer. Tick the ones that you want "
           "to put back.";
  }
  if (record.IsTaken()) {
    return backup.IsWhole() ? "The record is empty. Settings can be put back only from the backup."
                            : "The record is empty, and there is no usable backup.";
  }
  return backup.IsWhole() ? "Nothing is recorded, so you can only restore the whole of system.ini."
                          : "Nothing is recorded. Q-DIX records these settings before it first changes one, "
                            "so there is nothing to put back.";
}

/// Says what is wrong with a backup that is readable but not complete.
const char* Fault(IniState state) {
  switch (state) {
    case IniState::kWithoutBoot:
      return "has no [boot] section";
    case IniState::kWithout386Enh:
      return "has no [386Enh] section";
    default:
      return "ends in the middle of a line";
  }
}

std::string WholeBackupText(const Backup& backup, bool differs_from_record, os::Clock& clock) {
  std::string text = "Backup: system.qdix in the Windows folder";
  if (backup.found.has_value()) {
    text += base::Concat({" (", backup.found->dos_name, " at the command prompt)"});
  }
  const std::string date = DateOf(backup, clock);
  if (!date.empty()) text += ", system.ini as of " + date;
  text += '.';
  if (differs_from_record) text += " It does not match the record, so no single setting is taken from it.";
  return text;
}

}  // namespace

std::string StateText(const Settings& settings) {
  std::string fault;
  if (settings.SystemIniState() == IniState::kMissing) fault = "is missing";
  if (settings.SystemIniState() == IniState::kWithoutBoot) fault = "has no [boot] section";
  if (fault.empty()) return RecordText(settings.TheRecord(), settings.TheBackup());
  return base::Concat({"Warning: system.ini ", fault, ". Windows cannot start without it. ",
                       settings.TheBackup().IsWhole()
                           ? "Restore the whole file before you restart."
                           : "Put a complete system.ini in the Windows folder before you restart."});
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
      return base::Concat({"system.qdix in the Windows folder is damaged: it ", Fault(backup.state),
                           ". It will not be used."});
  }
}

std::string DateOf(const Backup& backup, os::Clock& clock) {
  return backup.found.has_value() ? clock.LongDate(backup.found->changed_days) : std::string();
}

}  // namespace qdix::undo
