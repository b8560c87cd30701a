#include "help_viewer/help_form.h"

#include "base/runtime_error.h"
#include "help_viewer/command_line.h"
#include "help_viewer/packed_stream.h"
#include "help_viewer/paper.h"
#include "help_viewer/plain_text.h"

namespace qdix::help_viewer {

HelpForm::HelpForm(const HelpSystem& system, const Devices& devices, const StartWith& start)
    : system_(system),
      devices_(devices),
      stream_(Unpack(start.packed_stream)),
      book_(stream_),
      first_topic_(book_.IndexOf(TopicOfCommandLine(start.command_line).value_or(kNoLink))),
      boxes_(system.dialogs, application_),
      reader_(book_, screen_),
      contents_list_(book_, screen_, reader_),
      find_page_(book_, screen_, reader_),
      saved_place_(system.registry, devices.screen) {
  CloseOtherViewers();
  events_.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&HelpForm::ReportUntrapped>(*this));
  Bind();
}

void HelpForm::Bind() {
  screen_.cmdContents.OnClick = ui::Handler::To<&HelpForm::cmdContents_Click>(*this);
  screen_.cmdFind.OnClick = ui::Handler::To<&HelpForm::cmdFind_Click>(*this);
  screen_.cmdPrint.OnClick = ui::Handler::To<&HelpForm::cmdPrint_Click>(*this);
  screen_.cmdCopy.OnClick = ui::Handler::To<&HelpForm::cmdCopy_Click>(*this);
  screen_.paneTopic.OnCopy = ui::Handler::To<&HelpForm::cmdCopy_Click>(*this);
  screen_.Window.OnResize = ui::Handler::To<&HelpForm::Arrange>(*this);
  screen_.Window.OnEscape = ui::Handler::To<&HelpForm::Close>(*this);
  screen_.Window.OnUnload = ui::Handler::To<&HelpForm::Unload>(*this);
  reader_.OnOpened = base::Callback<void()>::To<&ContentsList::Follow>(contents_list_);
}

/// Finds the next window before it sends the message: the search continues from the window that is about to
/// close.
void HelpForm::CloseOtherViewers() const {
  os::WindowHandle viewer = system_.windows.FindWindowExA(0, kWindowTitle);
  while (viewer != 0) {
    const os::WindowHandle next = system_.windows.FindWindowExA(viewer, kWindowTitle);
    system_.windows.PostMessageA(viewer, os::kWmClose);
    viewer = next;
  }
}

void HelpForm::Start() {
  saved_place_.Restore(screen_.Window);
  reader_.Begin(first_topic_);
  screen_.Window.Show();
  if (reader_.Current() == kContentsPage) {
    screen_.lstContents.SetFocus();
  } else {
    screen_.paneTopic.SetFocus();
  }
}

void HelpForm::EndSession() {
  application_.SetSessionIsEnding();
  screen_.Window.Unload();
}

void HelpForm::ShowSide(Side side) {
  const bool finds = side == Side::kFind;
  // Shows the new controls first, so the focus can move there before the others disappear.
  ui::Control* const find_controls[] = {&screen_.lblWord, &screen_.txtWord, &screen_.lblFound,
                                        &screen_.lstFound};
  if (finds) {
    for (ui::Control* control : find_controls) control->SetVisible(true);
    screen_.txtWord.SetFocus();
    screen_.txtWord.SelectAll();
    screen_.lstContents.SetVisible(false);
  } else {
    screen_.lstContents.SetVisible(true);
    screen_.lstContents.SetFocus();
    for (ui::Control* control : find_controls) control->SetVisible(false);
  }
}

base::Status HelpForm::cmdContents_Click() {
  ShowSide(Side::kContents);
  reader_.Open(kContentsPage);
  return base::kDone;
}

base::Status HelpForm::cmdFind_Click() {
  ShowSide(Side::kFind);
  return base::kDone;
}

base::Status HelpForm::cmdPrint_Click() {
  screen_.paneTopic.SetFocus();
  const os::Printer::Choice choice = devices_.printer.PrintDlgA();
  if (choice == os::Printer::Choice::kCancelled) return base::kDone;
  bool is_printed = false;
  if (choice == os::Printer::Choice::kPrint) {
    // The program may have ended while the dialog was open.
    is_printed =
        screen_.Window.Unloaded() || PrintTopic(devices_.printer, screen_.paneTopic.Shown(), kWindowTitle);
    devices_.printer.DeleteDC();
  }
  if (!is_printed && !screen_.Window.Unloaded()) {
    boxes_.Warn(
        "The topic could not be printed.\r\n\r\nPlease make sure that a printer is installed and ready.");
  }
  return base::kDone;
}

base::Status HelpForm::cmdCopy_Click() {
  screen_.paneTopic.SetFocus();
  if (!devices_.clipboard.SetClipboardData(PlainText(screen_.paneTopic.Shown()))) {
    boxes_.Warn(
        "The topic could not be copied.\r\n\r\nAnother program may be using the clipboard. Please try "
        "again.");
  }
  return base::kDone;
}

base::Status HelpForm::Arrange() {
  screen_.Arrange();
  return base::kDone;
}

base::Status HelpForm::Close() {
  screen_.Window.Close();
  return base::kDone;
}

base::Status HelpForm::Unload() {
  saved_place_.Save(screen_.Window);
  return base::kDone;
}

void HelpForm::ReportUntrapped(const base::RuntimeError& error) {
  boxes_.Warn(base::UntrappedErrorText(error));
  screen_.Window.Unload();
}

}  // namespace qdix::help_viewer
