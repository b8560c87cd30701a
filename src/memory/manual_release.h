// "Free Up RAM Now": the button, its amount and its number of passes.
#pragma once

#include <cstdint>

#include "memory/memory_release.h"
#include "registry/settings_store.h"
#include "screens/quondix_screen.h"

namespace qdix::memory {

class ManualRelease {
 public:
  /// A release shows in the CPU graph as a full-height bar.
  static constexpr std::int32_t kReleaseBar = 100;

  ManualRelease(MemoryRelease& release, registry::SettingsStore& settings, screens::QuondixScreen& screen);

  void FillList();

  /// Selects the stored amount, or the default for a machine with this much memory.
  void LoadAmount(double total_ram_mb);
  void LoadTryTimes();

  /// Returns the number of passes for every release, as Text1 shows it.
  [[nodiscard]] double TryTimes() const;

  /// Runs one manual release; the tray menu calls it too. The button is disabled until the release ends.
  base::Status Command1_Click();
  base::Status List1_Click();
  base::Status Text1_Change();
  base::Status VScroll1_Change();

 private:
  double Amount();

  MemoryRelease& release_;
  registry::SettingsStore& settings_;
  screens::QuondixScreen& screen_;
};

}  // namespace qdix::memory
