// Restarts Windows, which changed system settings need to take effect.
#pragma once

#include "os/system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::tuning {

class Restart {
 public:
  Restart(const os::System& system, const ui::Application& application, ui::Form& form)
      : system_(system), application_(application), form_(form) {}

  /// Asks Windows to restart the machine. Ignores a refusal.
  void RebootMachine();

  /// Restarts the machine and ends the program.
  void RebootAndUnload();

  /// Says that the new settings need a restart, and restarts if the user agrees.
  void Offer();

 private:
  const os::System& system_;
  const ui::Application& application_;
  ui::Form& form_;
};

}  // namespace qdix::tuning
