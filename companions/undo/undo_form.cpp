#include "undo/undo_form.h"

#include "undo/state_text.h"

namespace qdix::undo {

UndoForm::UndoForm(const UndoSystem& system)
    : system_(system),
      boxes_(system.dialogs, application_),
      settings_(system_),
      restart_(system.session, boxes_, screen_.Window),
      entry_list_(boxes_, screen_, settings_, restart_),
      whole_file_(system.clock, boxes_, screen_, settings_, entry_list_, restart_) {
  events_.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&UndoForm::ReportUntrapped>(*this));
  screen_.cmdClose.OnClick = ui::Handler::To<&UndoForm::cmdClose_Click>(*this);
  entry_list_.ReadAgain = base::Callback<void()>::To<&UndoForm::Read>(*this);
  whole_file_.ReadAgain = base::Callback<void()>::To<&UndoForm::Read>(*this);
}

void UndoForm::Start() {
  Read();
  entry_list_.TickCertain();
  screen_.Window.Show();
}

void UndoForm::Read() {
  settings_.Read();
  screen_.lblState.SetCaption(StateText(settings_));
  screen_.lblBackup.SetCaption(BackupText(settings_.TheBackup(), settings_.TheRecord(), system_.clock));
  entry_list_.Show();
  whole_file_.Show();
}

void UndoForm::EndSession() {
  application_.SetSessionIsEnding();
  screen_.Window.Unload();
}

base::Status UndoForm::cmdClose_Click() {
  screen_.Window.Unload();
  return base::kDone;
}

void UndoForm::ReportUntrapped(const base::RuntimeError& error) {
  boxes_.ShowUntrapped(error);
  screen_.Window.Unload();
}

}  // namespace qdix::undo
