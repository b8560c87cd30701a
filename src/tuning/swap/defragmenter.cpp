#include "tuning/swap/defragmenter.h"

#include "shell/start_program.h"

namespace qdix::tuning {

Defragmenter::Defragmenter(const os::System& system, const ui::Application& application, ui::Form& form,
                           screens::SwapFileScreen& screen, const SwapFile& swap_file)
    : system_(system), application_(application), form_(form), swap_file_(swap_file) {
  screen.Command26.OnClick = ui::Handler::To<&Defragmenter::Command26_Click>(*this);
}

base::Status Defragmenter::Command26_Click() {
  const int answer = system_.dialogs.MessageBoxA(
      "Ok to run the Disk Defragmenter now?  Quondix will close down for this process.", application_.Title(),
      os::kMbOkCancel);
  if (answer != os::kIdOk) return base::kDone;
  const base::Status started = shell::StartProgram(system_.processes, "defrag " + swap_file_.SelectedDrive());
  if (started.Ok()) form_.Unload();
  return started;
}

}  // namespace qdix::tuning
