// Runs the disk defragmenter of Windows in place of this program.
#pragma once

#include "host/boxes.h"
#include "os/processes.h"
#include "screens/swap_file_screen.h"
#include "tuning/swap/swap_file.h"
#include "ui/form.h"

namespace qdix::tuning {

class Defragmenter {
 public:
  Defragmenter(os::Processes& processes, host::Boxes& boxes, ui::Form& form, screens::SwapFileScreen& screen,
               const SwapFile& swap_file);

  /// Asks, starts the defragmenter on the selected drive and ends the program. Returns an error if the
  /// defragmenter is missing.
  base::Status Command26_Click();

 private:
  os::Processes& processes_;
  host::Boxes& boxes_;
  ui::Form& form_;
  const SwapFile& swap_file_;
};

}  // namespace qdix::tuning
