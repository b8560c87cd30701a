// The main window: owns and connects the screens and the subsystems, loads the program in its fixed order and
// unloads it. The subsystems do the actual work.
#pragma once

#include "app/machine_record.h"
#include "app/single_instance.h"
#include "app/tray_icon.h"
#include "app/up_time.h"
#include "app/window_modes.h"
#include "cpu/cpu_speed.h"
#include "cpu/cpu_usage.h"
#include "cpu/processor_identification.h"
#include "host/boxes.h"
#include "launcher/config_watch.h"
#include "launcher/launch_release.h"
#include "launcher/program_launcher.h"
#include "memory/automatic_release.h"
#include "memory/manual_release.h"
#include "memory/memory_monitor.h"
#include "memory/memory_release.h"
#include "memory/scheduled_release.h"
#include "memory/startup_release.h"
#include "memory/timed_release.h"
#include "os/system.h"
#include "registry/settings_store.h"
#include "screens/about_screen.h"
#include "screens/automatic_screen.h"
#include "screens/cache_screen.h"
#include "screens/launcher_screen.h"
#include "screens/main_window.h"
#include "screens/quondix_screen.h"
#include "screens/startup_screen.h"
#include "screens/swap_file_screen.h"
#include "screens/time_intervals_screen.h"
#include "screens/tray_menu.h"
#include "shell/desktop_shortcut.h"
#include "shell/help.h"
#include "shell/startup_registration.h"
#include "tuning/cache/cache_save.h"
#include "tuning/cache/cache_settings.h"
#include "tuning/first_save.h"
#include "tuning/restart.h"
#include "tuning/swap/defragmenter.h"
#include "tuning/swap/drive_info.h"
#include "tuning/swap/swap_file.h"
#include "tuning/swap/swap_save.h"
#include "tuning/swap/swap_suggestion.h"
#include "tuning/system_ini.h"
#include "ui/application.h"

namespace qdix::app {

class Form1 {
 public:
  /// `system` must outlive this object.
  explicit Form1(const os::System& system);
  Form1(const Form1&) = delete;
  Form1& operator=(const Form1&) = delete;
  ~Form1() = default;

  /// Loads the program, then shows the window unless the stored display mode hides it. If this is a second
  /// copy, or the load fails, the window is unloaded afterwards.
  void Start();

  /// The Windows session ends. Unloads the window; from now on the user is not asked anything.
  void EndSession();

  [[nodiscard]] ui::Application& TheApplication() { return application_; }
  [[nodiscard]] ui::Form& Form() { return window_.Form; }
  [[nodiscard]] screens::MainWindow::AllTimers Timers() { return window_.Timers(); }

  base::Status Form_Load();
  base::Status Form_Activate();
  base::Status Form_Unload();
  base::Status SSTab1_Click(int tab_left);
  base::Status Timer1_Timer();
  base::Status Timer6_Timer();

  // The screens, for code that inspects or operates the window.
  [[nodiscard]] screens::MainWindow& MainWindow() { return window_; }
  [[nodiscard]] screens::QuondixScreen& QuondixScreen() { return quondix_; }
  [[nodiscard]] screens::AutomaticScreen& AutomaticScreen() { return automatic_; }
  [[nodiscard]] screens::TimeIntervalsScreen& TimeIntervalsScreen() { return time_intervals_; }
  [[nodiscard]] screens::StartupScreen& StartupScreen() { return startup_; }
  [[nodiscard]] screens::LauncherScreen& LauncherScreen() { return launcher_screen_; }
  [[nodiscard]] screens::CacheScreen& CacheScreen() { return cache_; }
  [[nodiscard]] screens::SwapFileScreen& SwapFileScreen() { return swap_file_screen_; }
  [[nodiscard]] screens::AboutScreen& AboutScreen() { return about_; }

  [[nodiscard]] screens::TrayMenu& TrayMenu() { return tray_menu_; }
  [[nodiscard]] app::TrayIcon& TrayIcon() { return tray_icon_; }

  [[nodiscard]] memory::MemoryMonitor& MemoryMonitor() { return monitor_; }
  [[nodiscard]] memory::MemoryRelease& MemoryRelease() { return release_; }
  [[nodiscard]] memory::AutomaticRelease& AutomaticRelease() { return automatic_release_; }
  [[nodiscard]] cpu::CpuUsage& CpuUsage() { return cpu_usage_; }
  [[nodiscard]] memory::StartupRelease& StartupRelease() { return startup_release_; }

 private:
  void BindEvents();
  void ShowVersion();
  void RunFirstTimeSteps();
  void SelectStoredTab();
  void LoadReleaseSettings(double total_ram_mb);
  base::Status SaveAtExit();
  void ShowTip();
  void ReportUntrapped(const base::RuntimeError& error);

  const os::System& system_;
  ui::EventDispatcher events_;
  ui::Application application_{"Q-DIX"};
  host::Boxes boxes_;
  registry::SettingsStore settings_;

  screens::MainWindow window_{events_};
  screens::QuondixScreen quondix_{window_.SSTab1.Page(screens::kQuondixTab)};
  screens::AutomaticScreen automatic_{window_.SSTab1.Page(screens::kAutomaticTab)};
  screens::TimeIntervalsScreen time_intervals_{window_.SSTab1.Page(screens::kTimeIntervalsTab)};
  screens::StartupScreen startup_{window_.SSTab1.Page(screens::kStartupTab)};
  screens::LauncherScreen launcher_screen_{window_.SSTab1.Page(screens::kLauncherTab)};
  screens::CacheScreen cache_{window_.SSTab1.Page(screens::kCacheTab)};
  screens::SwapFileScreen swap_file_screen_{window_.SSTab1.Page(screens::kSwapFileTab)};
  screens::AboutScreen about_{window_.SSTab1.Page(screens::kAboutTab)};
  screens::TrayMenu tray_menu_{events_};

  SingleInstance single_instance_;
  MachineRecord machine_record_;
  cpu::ProcessorIdentification processor_;
  cpu::CpuSpeed cpu_speed_;
  cpu::CpuUsage cpu_usage_;
  memory::MemoryMonitor monitor_;
  memory::MemoryRelease release_;
  memory::ManualRelease manual_release_;
  memory::ScheduledRelease scheduled_release_;
  memory::AutomaticRelease automatic_release_;
  memory::TimedRelease timed_release_;
  memory::StartupRelease startup_release_;
  shell::StartupRegistration startup_registration_;
  shell::DesktopShortcut desktop_shortcut_;
  shell::Help help_;
  tuning::SystemIni system_ini_;
  tuning::FirstSave first_save_;
  tuning::Restart restart_;
  tuning::CacheSettings cache_settings_;
  tuning::CacheSave cache_save_;
  tuning::DriveInfo drive_info_;
  tuning::SwapFile swap_file_;
  tuning::SwapSuggestion swap_suggestion_;
  tuning::SwapSave swap_save_;
  tuning::Defragmenter defragmenter_;
  launcher::LaunchRelease launch_release_;
  launcher::ProgramLauncher program_launcher_;
  launcher::ConfigWatch config_watch_;
  UpTime up_time_;
  WindowModes window_modes_;
  app::TrayIcon tray_icon_;

  bool tip_pending_ = false;
  bool first_help_pending_ = false;
  bool load_finished_ = false;
};

}  // namespace qdix::app
