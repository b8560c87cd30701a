#include "tuning/swap/defragmenter.h"

#include "shell/start_program.h"

namespace qdix::tuning {

Defragmenter::Defragmenter(os::Processes& processes, host::Boxes& boxes, ui::Form& form,
                           screens::SwapFileScreen& screen, const SwapFile& swap_file)
    : processes_(processes), boxes_(boxes), form_(form), swap_file_(swap_file) {
  screen.Command26.OnClick = ui::Handler::To<&Defragmenter::Command26_Click>(*this);
}

base::Status Defragmenter::Command26_Click() {
  const int answer = boxes_.Ask(
      "Ok to run the Disk Defragmenter now?  Quondix will close down for this process.", os::kMbOkCancel);
  if (answer != os::kIdOk) return base::kDone;
  const base::Status started = shell::StartProgram(processes_, "defrag " + swap_file_.SelectedDrive());
  if (started.Ok()) form_.Unload();
  return started;
}

}  // namespace qdix::tuning
