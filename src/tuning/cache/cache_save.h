// Writes the settings of the disk cache to system.ini and to the program's own file-system template. Also
// resets them to the Windows defaults.
#pragma once

#include "host/boxes.h"
#include "os/registry.h"
#include "registry/module_registry.h"
#include "screens/cache_screen.h"
#include "tuning/first_save.h"
#include "tuning/restart.h"
#include "tuning/system_ini.h"

namespace qdix::tuning {

class CacheSave {
 public:
  CacheSave(os::Registry& registry, host::Boxes& boxes, screens::CacheScreen& screen, SystemIni& system_ini,
            FirstSave& first_save, Restart& restart);

  /// "Save Settings". Asks first, then writes and offers to restart. Settings that cannot be written stay
  /// unchanged.
  base::Status Command11_Click();

  /// "System Defaults": clears all boxes. The next save then removes the settings.
  base::Status Command14_Click();

 private:
  base::Status Save();
  base::Status SaveTemplate();
  base::Status SaveTemplateEntry(const ui::Slider& slider, const char* value_name);
  void SaveSize(const ui::CheckBox& box, const ui::Slider& slider, const char* key);

  registry::ModuleRegistry registry_;
  host::Boxes& boxes_;
  screens::CacheScreen& screen_;
  SystemIni& system_ini_;
  FirstSave& first_save_;
  Restart& restart_;
};

}  // namespace qdix::tuning
