// Where the window stood when it was closed, kept from one start to the next.
#pragma once

#include "os/screen.h"
#include "os/system.h"
#include "shell/settings_store.h"
#include "ui/form.h"

namespace qdix::help_viewer {

class RememberedPlace {
 public:
  /// Both must outlive this object.
  RememberedPlace(os::Registry& registry, os::Screen& screen) : settings_(registry), screen_(screen) {}

  /// Places the window where it stood, moved and cut so that all of it is on the screen. Where nothing, or
  /// something else than numbers, is kept, the window stays where it is.
  void Restore(ui::Form& window) const;
  void Save(const ui::Form& window);

 private:
  shell::SettingsStore settings_;
  os::Screen& screen_;
};

}  // namespace qdix::help_viewer
