#include "undo/undo_form.h"

#include "base/runtime_error.h"

namespace qdix::undo {

UndoForm::UndoForm(const os::System& system)
    : system_(system),
      settings_(system),
      restart_(system, application_, screen_.Window),
      entry_list_(system, application_, screen_, settings_, restart_),
      whole_file_(system, application_, screen_, settings_, restart_) {
  events_.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&UndoForm::ReportUntrapped>(*this));
  screen_.cmdClose.OnClick = ui::Handler::To<&UndoForm::cmdClose_Click>(*this);
  whole_file_.OnTried = base::Callback<void()>::To<&UndoForm::Read>(*this);
}

void UndoForm::Start() {
  Read();
  entry_list_.ChooseAll();
  screen_.Window.Show();
}

void UndoForm::Read() {
  screen_.lblState.SetCaption(settings_.HasRecord() ? "These settings were recorded before Q-DIX changed "
                                                      "this computer for the first time. Tick those that "
                                                      "are to be put back."
                                                    : "Nothing is recorded. Q-DIX records these settings "
                                                      "before it changes one of them for the first time, so "
                                                      "there is nothing to put back.");
  entry_list_.Read();
  whole_file_.Read();
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
  system_.dialogs.MessageBoxA(base::UntrappedErrorText(error), application_.Title(),
                              os::kMbOk | os::kMbIconStop);
  screen_.Window.Unload();
}

}  // namespace qdix::undo
