// The settings of the disk cache on the "Cache Settings" tab: read from the system, set by a preset, changed
// by the user. Writes nothing.
#pragma once

#include "memory/memory_monitor.h"
#include "os/system.h"
#include "registry/module_registry.h"
#include "screens/cache_screen.h"
#include "tuning/cache/cache_presets.h"
#include "tuning/system_ini.h"

namespace qdix::tuning {

class CacheSettings {
 public:
  CacheSettings(const os::System& system, const SystemIni& system_ini, const memory::MemoryMonitor& monitor,
                screens::CacheScreen& screen);

  void FillList();

  /// Fills the tab from system.ini and the program's own file-system template.
  void SetupCache();

  /// Selects the preset that matches the sliders, or "User-defined".
  void CheckCacheStartValues();

  /// Applies the preset that the user chose.
  base::Status Combo2_Click();

  base::Status Check5_Click();
  base::Status Check6_Click();
  base::Status Check7_Click();
  base::Status Check8_Click();

  base::Status Slider1_Moved(std::int32_t value);
  base::Status Slider2_Moved(std::int32_t value);
  base::Status Slider3_Moved(std::int32_t value);
  base::Status Slider4_Moved(std::int32_t value);
  base::Status Slider5_Moved(std::int32_t value);

 private:
  /// A slider, the label with its value, and the check box that turns the setting on.
  struct Group;
  [[nodiscard]] Group MinCache() const;
  [[nodiscard]] Group MaxCache() const;
  [[nodiscard]] Group ChunkSize() const;
  [[nodiscard]] Group NameCache() const;
  [[nodiscard]] Group DirectoryCache() const;

  static void ShowCaption(const Group& group);
  static void RefreshEnabledState(const Group& group);
  void LoadCacheSize(const Group& group, const char* key);
  void LoadChunkSize();
  void LoadTemplateEntry(const Group& group, const char* value_name);
  [[nodiscard]] CacheValues ShownValues() const;
  void BoxClicked();
  base::Status SliderMoved(const Group& group);

  registry::ModuleRegistry registry_;
  const SystemIni& system_ini_;
  const memory::MemoryMonitor& monitor_;
  screens::CacheScreen& screen_;
  /// True while a preset is applied. The boxes that it ticks must not make the settings user-defined.
  bool applying_preset_ = false;
};

}  // namespace qdix::tuning
