// Loads the main window. The order of the steps is part of the program's behaviour: an assignment fires its
// event, and the event handler stores a setting or starts a timer from what the controls show at that moment.
#include "app/form1.h"
#include "app/version.h"
#include "base/concat.h"
#include "base/numbers.h"

namespace qdix::app {

base::Status Form1::Form_Load() {
  if (single_instance_.AnotherIsRunning()) {
    single_instance_.ActivatePrevInstance();
    return base::kDone;
  }
  machine_record_.EnsureKey();
  ShowVersion();
  cpu_speed_.CPUSPEED();
  cpu_usage_.StartCpuStatistics();
  cpu_usage_.FirstCPUUSAGE();
  // Reporting the first reading opens a message box. The session may have ended while it was open.
  if (window_.Form.Unloaded()) return base::kDone;
  automatic_release_.FillLists();
  timed_release_.FillLists();
  startup_release_.FillLists();
  cache_settings_.FillList();
  if (machine_record_.IsFirstRun()) RunFirstTimeSteps();
  const base::Status up_time = Timer6_Timer();
  if (!up_time.Ok()) return up_time;
  automatic_release_.LoadCpuLimit();
  cpu_usage_.LoadUpdateInterval();
  timed_release_.LoadCpuLimit();
  SelectStoredTab();
  if (window_.Form.Unloaded()) return base::kDone;  // the session may have ended during the tip, too
  cache_settings_.SetupCache();
  startup_registration_.CheckStartup();
  automatic_release_.LoadCounter();

  const base::Status total = monitor_.SetTotalRamMb();
  if (!total.Ok()) return total;
  manual_release_.FillList();
  swap_file_.LoadSwapFile();
  const double total_ram_mb = monitor_.TotalRAM();
  LoadReleaseSettings(total_ram_mb);

  tray_icon_.AddToTray();
  window_modes_.LoadStartDisplay();
  startup_release_.LoadAmount(total_ram_mb);
  monitor_.ShowTotals();
  startup_release_.LoadAndArmDelay();
  const base::Status launcher_filled = program_launcher_.FillLauncherMenu();
  if (!launcher_filled.Ok()) return launcher_filled;
  cache_settings_.CheckCacheStartValues();
  const base::Status activated = Form_Activate();
  load_finished_ = activated.Ok();
  return activated;
}

void Form1::ShowVersion() {
  about_.lblVersion.SetCaption(base::Concat(
      {"v", base::TextOf(kMajorVersion), ".", base::TextOf(kMinorVersion), base::TextOf(kRevision)}));
}

void Form1::RunFirstTimeSteps() {
  automatic_release_.StartCounter();
  tip_pending_ = true;
  first_help_pending_ = true;
  startup_.Check2.SetTicked(true);
  machine_record_.MarkRun();
}

void Form1::SelectStoredTab() {
  const double stored = settings_.Get(setting::kLastTab);
  const base::Result<std::int32_t> tab = base::ToInt32(stored);
  if (tab.Ok())
    base::Ignore(window_.SSTab1.SetTab(tab.Value()));  // a tab that does not exist leaves the first one open
}

void Form1::LoadReleaseSettings(double total_ram_mb) {
  manual_release_.LoadAmount(total_ram_mb);
  manual_release_.LoadTryTimes();
  automatic_release_.LoadThreshold(total_ram_mb);
  automatic_release_.LoadAmount(total_ram_mb);
  timed_release_.LoadAmount(total_ram_mb);
  automatic_release_.LoadActive();
  startup_release_.LoadWarnings();
  timed_release_.LoadUnit();
  automatic_release_.LoadInterval();
  timed_release_.LoadActive();
}

}  // namespace qdix::app
