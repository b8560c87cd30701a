// Restarts Windows, which changed system settings need to take effect.
#pragma once

#include "host/boxes.h"
#include "os/session.h"
#include "ui/form.h"

namespace qdix::tuning {

class Restart {
 public:
  Restart(os::Session& session, host::Boxes& boxes, ui::Form& form)
      : session_(session), boxes_(boxes), form_(form) {}

  /// Asks Windows to restart the machine. Ignores a refusal.
  void RebootMachine();

  /// Restarts the machine and ends the program.
  void RebootAndUnload();

  /// Says that the new settings need a restart, and restarts if the user agrees.
  void Offer();

 private:
  os::Session& session_;
  host::Boxes& boxes_;
  ui::Form& form_;
};

}  // namespace qdix::tuning
