// "Free Up RAM Now": the button, the amount and the number of passes that go with it.
#pragma once

#include <cstdint>

#include "memory/memory_release.h"
#include "screens/quondix_screen.h"
#include "shell/settings_store.h"

namespace qdix::memory {

class ManualRelease {
 public:
  /// A release shows in the CPU graph as a bar of full height.
  static constexpr std::int32_t kReleaseBar = 100;

  ManualRelease(MemoryRelease& release, shell::SettingsStore& settings, screens::QuondixScreen& screen);

  /// Fills List1 with the amounts.
  void FillList();

  /// Selects the stored amount, or the default for a machine of this size.
  void LoadAmount(double total_ram_mb);
  /// Shows the stored number of passes.
  void LoadTryTimes();

  /// The number of passes that every release makes, as it stands in Text1.
  [[nodiscard]] double TryTimes() const;

  /// One manual release; also the tray menu's. The button is disabled from its start to its end.
  base::Status Command1_Click();
  base::Status List1_Click();
  base::Status Text1_Change();
  base::Status VScroll1_Change();

 private:
  double Amount();

  MemoryRelease& release_;
  shell::SettingsStore& settings_;
  screens::QuondixScreen& screen_;
};

}  // namespace qdix::memory
