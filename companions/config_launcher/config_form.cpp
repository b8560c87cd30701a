#include "config_launcher/config_form.h"

#include "base/concat.h"
#include "base/numbers.h"
#include "base/runtime_error.h"
#include "config_launcher/other_copy.h"

namespace qdix::config_launcher {

namespace {

/// Lists everything unusual about the file; empty if there is nothing.
std::string Remarks(const FoundList& found) {
  std::string remarks;
  if (found.is_from_backup) {
    remarks += "- An earlier save was interrupted. This list comes from the backup, launcher.bak.\r\n";
  }
  if (found.has_odd_length) {
    remarks += "- The file ends in the middle of a program. The last program may be incomplete.\r\n";
  }
  if (found.is_cut) {
    remarks += "- The file is longer than 100 programs. Only the first 100 were read.\r\n";
  }
  if (found.entries.size() > launcher::kMaxEntries) {
    remarks += base::Concat({"- It holds ", base::TextOf(static_cast<std::int32_t>(found.entries.size())),
                             " programs, but the launcher takes only 25. Please remove some.\r\n"});
  }
  if (found.has_control_characters) {
    remarks +=
        "- Some texts contained characters that cannot be displayed. Those characters were left out.\r\n";
  }
  if (found.has_incomplete_entries) remarks += "- Some programs have no name or no command line.\r\n";
  return remarks;
}

}  // namespace

ConfigForm::ConfigForm(const ConfigSystem& system, os::FileDialogs& dialogs)
    : system_(system),
      boxes_(system.dialogs, application_, screen_.Window),
      file_(system_),
      entry_list_(system_, screen_, boxes_),
      browse_(system_, dialogs, screen_, boxes_, entry_list_) {
  events_.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&ConfigForm::ReportUntrapped>(*this));
  screen_.cmdOK.OnClick = ui::Handler::To<&ConfigForm::cmdOK_Click>(*this);
  screen_.cmdCancel.OnClick = ui::Handler::To<&ConfigForm::cmdCancel_Click>(*this);
  screen_.Window.OnQueryClose = base::Callback<bool()>::To<&ConfigForm::MayClose>(*this);
}

void ConfigForm::Start() {
  if (BringOtherCopyForward(system_, application_, screen_.Window)) {
    screen_.Window.Unload();
    return;
  }
  const FoundList found = file_.Read();
  if (!found.is_readable) {
    boxes_.Show(
        "The list of programs could not be read.\r\n\r\nPlease make sure that no other program has "
        "launcher.dat open, and start Config Launcher again.");
    screen_.Window.Unload();
    return;
  }
  entry_list_.Take(found.entries);
  screen_.Window.Show();
  const std::string remarks = Remarks(found);
  if (!remarks.empty()) {
    boxes_.Show(base::Concat({"There are problems with the list of programs (launcher.dat):\r\n\r\n", remarks,
                              "\r\nThe file does not change until you save the list."}));
  }
}

void ConfigForm::EndSession() {
  application_.SetSessionIsEnding();
  screen_.Window.Unload();
}

void ConfigForm::ActivatedMinimised(std::uint32_t former_thread) {
  if (MayBeThreadOfQdix(system_, former_thread)) screen_.Window.SetState(ui::WindowState::kNormal);
}

bool ConfigForm::MaySessionEnd() {
  if (screen_.Window.Unloaded() || !HasUnsavedChanges()) return true;
  switch (boxes_.Choose("The list of programs has not been saved.\r\n\r\nDo you want to save it?")) {
    case EditorBoxes::Choice::kYes:
      return SaveList();
    case EditorBoxes::Choice::kNo:
      return true;
    case EditorBoxes::Choice::kCancel:
      return false;
  }
  return true;
}

base::Status ConfigForm::cmdOK_Click() {
  if (SaveList()) screen_.Window.Unload();
  return base::kDone;
}

bool ConfigForm::SaveList() {
  if (entry_list_.HasUnusedFields() &&
      !boxes_.Ask("What you typed in the fields is not in the list. To put it there, answer No and press "
                  "\"Add\" or \"Change\".\r\n\r\nDo you want to save the list without it?")) {
    return false;
  }
  if (entry_list_.Entries().size() > launcher::kMaxEntries) {
    boxes_.Show(
        "The launcher takes 25 programs at most.\r\n\r\nPlease remove some before you save the list.");
    return false;
  }
  const Saved saved = file_.Write(entry_list_.Entries());
  if (saved == Saved::kYes) {
    entry_list_.WasSaved();
    return true;
  }
  boxes_.Show(std::string("The list of programs could not be saved.\r\n\r\n") +
              (saved == Saved::kNo ? "Your previous list has not been changed."
                                   : "Your previous list is in launcher.bak.") +
              " Please make sure that the disk is neither full nor write-protected and that no other program "
              "has launcher.dat open, and try again.");
  return false;
}

base::Status ConfigForm::cmdCancel_Click() {
  screen_.Window.Close();
  return base::kDone;
}

bool ConfigForm::MayClose() {
  if (boxes_.AnyIsOpen()) return false;
  return !HasUnsavedChanges() || boxes_.Ask("Do you want to discard your changes?");
}

bool ConfigForm::HasUnsavedChanges() const {
  return entry_list_.IsChanged() || entry_list_.HasUnusedFields();
}

void ConfigForm::ReportUntrapped(const base::RuntimeError& error) {
  boxes_.Show(base::UntrappedErrorText(error));
  screen_.Window.Unload();
}

}  // namespace qdix::config_launcher
