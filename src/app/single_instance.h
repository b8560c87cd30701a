// Allows one copy of the program at a time: detects a running copy and brings it to the front.
#pragma once

#include "os/system.h"
#include "ui/application.h"
#include "ui/form.h"

namespace qdix::app {

class SingleInstance {
 public:
  SingleInstance(const os::System& system, ui::Application& application, ui::Form& form)
      : system_(system), application_(application), form_(form) {}

  /// True if another copy was running before this one.
  [[nodiscard]] bool AnotherIsRunning();

  /// Finds the running copy by its hidden application window; restores, shows and raises the window before
  /// that one in the Z order. Unloads this copy's window in any case, even if no such window is found: two
  /// copies would fight over the settings and the tray icon.
  void ActivatePrevInstance();

 private:
  [[nodiscard]] os::WindowHandle FindOtherApplicationWindow(const std::string& title) const;

  const os::System& system_;
  ui::Application& application_;
  ui::Form& form_;
};

}  // namespace qdix::app
