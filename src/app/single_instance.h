// One copy of the program at a time: recognises a running copy and brings it to the front.
#pragma once

#include "os/system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::app {

class SingleInstance {
 public:
  SingleInstance(const os::System& system, ui::Application& application, ui::Form& form)
      : system_(system), application_(application), form_(form) {}

  /// True where another copy had started before.
  [[nodiscard]] bool AnotherIsRunning();

  /// Finds the running copy by its hidden application window, restores, shows and raises the window that
  /// precedes it, and unloads this copy's window. Where no such window is found this copy is unloaded
  /// all the same: two copies would fight over settings and icon.
  void ActivatePrevInstance();

 private:
  [[nodiscard]] os::WindowHandle FindOtherApplicationWindow(const std::string& title) const;

  const os::System& system_;
  ui::Application& application_;
  ui::Form& form_;
};

}  // namespace qdix::app
