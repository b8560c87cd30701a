// The settings of the disk cache as the "Cache Settings" tab shows them: read from the system, set by a
// preset, changed by hand. Nothing is written here.
#pragma once

#include "memory/memory_monitor.h"
#include "os/system.h"
#include "screens/cache_screen.h"
#include "shell/module_registry.h"
#include "tuning/cache/cache_presets.h"
#include "tuning/cache/system_ini.h"

namespace qdix::tuning {

class CacheSettings {
 public:
  CacheSettings(const os::System& system, const SystemIni& system_ini, const memory::MemoryMonitor& monitor,
                screens::CacheScreen& screen);

  /// Fills the list of presets.
  void FillList();

  /// Fills the tab from system.ini and from the program's own file-system template.
  void SetupCache();

  /// Names the preset that the sliders show, where they show one.
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
  /// A slider, the label that shows its value, and the box without which it sets nothing.
  struct Group;
  [[nodiscard]] Group MinCache() const;
  [[nodiscard]] Group MaxCache() const;
  [[nodiscard]] Group ChunkSize() const;
  [[nodiscard]] Group NameCache() const;
  [[nodiscard]] Group DirectoryCache() const;

  static void ShowCaption(const Group& group);
  static void ShowWhetherEnabled(const Group& group);
  void LoadCacheSize(const Group& group, const char* key);
  void LoadChunkSize();
  void LoadTemplateEntry(const Group& group, const char* value_name);
  [[nodiscard]] CacheValues ShownValues() const;
  void BoxClicked();
  base::Status SliderMoved(const Group& group);

  shell::ModuleRegistry registry_;
  const SystemIni& system_ini_;
  const memory::MemoryMonitor& monitor_;
  screens::CacheScreen& screen_;
  /// Boxes that a preset ticks do not make the settings the user's own.
  bool applying_preset_ = false;
};

}  // namespace qdix::tuning
