#include "app/form1.h"

#include "base/numbers.h"

namespace qdix::app {

Form1::Form1(const os::System& system)
    : system_(system),
      boxes_(system.dialogs, application_),
      settings_(system.registry),
      single_instance_(system, application_, window_.Form),
      machine_record_(system.registry),
      processor_(system.processor),
      cpu_speed_(processor_, quondix_),
      cpu_usage_(system.registry, boxes_, settings_, quondix_, startup_),
      monitor_(system.memory, boxes_, window_.Form, quondix_, cpu_usage_),
      release_(system, boxes_, window_.Form),
      manual_release_(release_, settings_, quondix_),
      scheduled_release_(release_, monitor_, cpu_usage_, manual_release_, {quondix_, startup_}),
      automatic_release_(system, settings_, automatic_, window_.SSTab1, window_.Timer2, boxes_,
                         scheduled_release_),
      timed_release_(settings_, time_intervals_, window_.SSTab1, {window_.Timer4, window_.Timer5}, boxes_,
                     scheduled_release_),
      startup_release_(settings_, startup_, window_.Timer3, scheduled_release_),
      startup_registration_(system, startup_),
      desktop_shortcut_(system, startup_),
      help_(system, {quondix_, automatic_, time_intervals_, startup_, launcher_screen_, cache_,
                     swap_file_screen_, about_}),
      system_ini_(system.profile_files, system.files),
      first_save_(system, system_ini_),
      restart_(system.session, boxes_, window_.Form),
      cache_settings_(system, system_ini_, monitor_, cache_),
      cache_save_(system.registry, boxes_, cache_, system_ini_, first_save_, restart_),
      drive_info_(system.drives),
      swap_file_(system_ini_, drive_info_, monitor_, swap_file_screen_),
      swap_suggestion_(boxes_, monitor_, swap_file_screen_, swap_file_),
      swap_save_(boxes_, monitor_, swap_file_screen_, swap_file_, {system_ini_, first_save_, restart_}),
      defragmenter_(system.processes, boxes_, window_.Form, swap_file_screen_, swap_file_),
      launch_release_(release_, monitor_, settings_, launcher_screen_, startup_.Check4),
      program_launcher_(system, boxes_, {window_.Form, launcher_screen_, tray_menu_}, launch_release_),
      config_watch_(system, launcher_screen_, window_.Timer7, program_launcher_),
      up_time_(system.clock, startup_),
      window_modes_(settings_, {window_, quondix_, automatic_, time_intervals_, startup_}),
      tray_icon_(system, window_.Form, tray_menu_, monitor_, manual_release_) {
  BindEvents();
}

void Form1::BindEvents() {
  using ui::Handler;
  events_.ReportErrorsTo(ui::EventDispatcher::ErrorReporter::To<&Form1::ReportUntrapped>(*this));
  window_.Form.OnActivate = Handler::To<&Form1::Form_Activate>(*this);
  window_.Form.OnUnload = Handler::To<&Form1::Form_Unload>(*this);
  window_.SSTab1.OnClick = base::Callback<base::Status(int)>::To<&Form1::SSTab1_Click>(*this);
  window_.Timer1.OnTimer = Handler::To<&Form1::Timer1_Timer>(*this);
  window_.Timer6.OnTimer = Handler::To<&Form1::Timer6_Timer>(*this);
}

void Form1::Start() {
  events_.Run(ui::Handler::To<&Form1::Form_Load>(*this));
  if (!window_.Form.Unloaded() && !window_modes_.StartsHidden()) window_.Form.Show();
}

void Form1::EndSession() {
  application_.SetSessionIsEnding();
  window_.Form.UnloadAtOnce();
}

/// Also called at the end of the load, to refresh the display of a hidden window. The first help waits for a
/// window that the user can see.
base::Status Form1::Form_Activate() {
  window_.Timer1.SetEnabled(true);
  if (!first_help_pending_ || !window_.Form.Visible()) return base::kDone;
  first_help_pending_ = false;
  return help_.HasViewer() ? help_.FirstHelp() : base::kDone;
}

base::Status Form1::Timer1_Timer() {
  tray_icon_.RetryAdd();
  monitor_.RefreshMemoryDisplay();
  return base::kDone;
}

base::Status Form1::Timer6_Timer() {
  up_time_.Show();
  tray_icon_.LookForTaskbar();
  return base::kDone;
}

base::Status Form1::SSTab1_Click(int tab_left) {
  const bool refused_limit_opens_tab = automatic_release_.OpeningTab() || timed_release_.OpeningTab();
  if (!refused_limit_opens_tab && tab_left == screens::kAutomaticTab) {
    const base::Result<bool> accepted = automatic_release_.Text9_Validate();
    if (!accepted.Ok()) return accepted.Error();
  }
  if (!refused_limit_opens_tab && tab_left == screens::kTimeIntervalsTab) {
    const base::Result<bool> accepted = timed_release_.Text10_Validate();
    if (!accepted.Ok()) return accepted.Error();
  }
  if (window_.SSTab1.Tab() == screens::kAutomaticTab && tip_pending_) ShowTip();
  return base::kDone;
}

void Form1::ShowTip() {
  tip_pending_ = false;
  system_.dialogs.MessageBoxA(
      "The Automatic free up function has been disabled on purpose to show you how inefficient Windows "
      "really is.\r\n"
      "You can see how much RAM is available in realtime in the title bar as it is constantly updated.  "
      "On machines running 64 MB or less it is very common to almost run out of RAM after just starting "
      "Windows.\r\n\r\n"
      "To activate the automatic feature simply ensure the 'Auto Detection Active' checkbox is checked.",
      "Quondix Tip", os::kMbOk | os::kMbIconInformation);
}

/// Stores nothing if the load did not finish: the controls do not show the stored settings yet.
base::Status Form1::Form_Unload() {
  const base::Status saved = load_finished_ ? SaveAtExit() : base::kDone;
  tray_icon_.Remove();
  return saved;
}

/// A refused limit opens a message box. If the session ends while it is open, everything has already been
/// stored.
base::Status Form1::SaveAtExit() {
  const base::Status amount = startup_release_.Combo1_LostFocus();
  if (!amount.Ok()) return amount;
  const base::Result<bool> auto_limit = automatic_release_.Text9_Validate();
  if (!auto_limit.Ok()) return auto_limit.Error();
  if (window_.Form.Unloaded()) return base::kDone;
  const base::Result<bool> time_limit = timed_release_.Text10_Validate();
  if (!time_limit.Ok()) return time_limit.Error();
  if (window_.Form.Unloaded()) return base::kDone;
  settings_.Save(setting::kLastTab, window_.SSTab1.Tab());
  return base::kDone;
}

void Form1::ReportUntrapped(const base::RuntimeError& error) {
  boxes_.ShowUntrapped(error);
  window_.Form.Unload();
}

}  // namespace qdix::app
