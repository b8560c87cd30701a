// Stores the position of the window on closing and restores it at the next start.
#pragma once

#include "os/screen.h"
#include "os/system.h"
#include "registry/settings_store.h"
#include "ui/form.h"

namespace qdix::help_viewer {

class SavedWindowPlace {
 public:
  /// Both must outlive this object.
  SavedWindowPlace(os::Registry& registry, os::Screen& screen) : settings_(registry), screen_(screen) {}

  /// Places the window at its stored position, moved and shrunk to fit the work area. If nothing is stored,
  /// or something other than numbers, leaves the window where it is.
  void Restore(ui::Form& window) const;
  void Save(const ui::Form& window);

 private:
  registry::SettingsStore settings_;
  os::Screen& screen_;
};

}  // namespace qdix::help_viewer
