#include "launcher/config_watch.h"

#include "shell/application_folder.h"
#include "shell/start_program.h"

namespace qdix::launcher {

namespace {

/// Time for the editor to open its window: 3 ticks, nine seconds.
constexpr std::int16_t kOpeningTicks = 3;
/// The watch gives up after this many ticks, twelve and a half minutes.
constexpr std::int16_t kMaxTicks = 250;

}  // namespace

ConfigWatch::ConfigWatch(const os::System& system, screens::LauncherScreen& screen, ui::Timer& timer7,
                         ProgramLauncher& launcher)
    : system_(system), timer7_(timer7), launcher_(launcher) {
  screen.Command15.OnClick = ui::Handler::To<&ConfigWatch::Command15_Click>(*this);
  timer7_.OnTimer = ui::Handler::To<&ConfigWatch::Timer7_Timer>(*this);
}

os::WindowHandle ConfigWatch::FindEditor() { return system_.windows.FindWindowA(nullptr, "Config Launcher"); }

base::Status ConfigWatch::Command15_Click() {
  const os::WindowHandle editor = FindEditor();
  if (editor != 0) {
    system_.windows.SetForegroundWindow(editor);
    return base::kDone;
  }
  // In quotation marks, because the folder name may contain blanks.
  const std::string editor_path = shell::ApplicationFolder(system_.processes) + "configL.exe";
  const base::Status started = shell::StartProgram(system_.processes, '"' + editor_path + '"');
  if (!started.Ok()) return started;
  config_watch_ticks_ = 0;
  timer7_.SetEnabled(true);
  return base::kDone;
}

/// The tick that gives up still looks once. If another program holds the list open, a later tick reads it.
base::Status ConfigWatch::Timer7_Timer() {
  ++config_watch_ticks_;
  if (config_watch_ticks_ <= kOpeningTicks) return base::kDone;
  if (config_watch_ticks_ > kMaxTicks) timer7_.SetEnabled(false);
  if (FindEditor() != 0) return base::kDone;
  const base::Result<bool> reloaded = launcher_.ReloadLauncherMenu();
  if (reloaded.Ok() && !reloaded.Value()) return base::kDone;
  timer7_.SetEnabled(false);
  return reloaded.Ok() ? base::kDone : reloaded.Error();
}

}  // namespace qdix::launcher
