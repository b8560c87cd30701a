#include "shell/startup_registration.h"

#include "registry/module_registry.h"
#include "registry/registry_key.h"
#include "shell/application_folder.h"
#include "shell/shell_folders.h"
#include "shell/shortcut_names.h"

namespace qdix::shell {

StartupRegistration::StartupRegistration(const os::System& system, screens::StartupScreen& screen)
    : system_(system), screen_(screen), paths_(system.registry) {
  screen_.Check2.OnClick = ui::Handler::To<&StartupRegistration::Check2_Click>(*this);
}

void StartupRegistration::CheckStartup() {
  const std::string startup_folder = SpecialFolderPath(system_.shell_files, os::kStartupFolder);
  const bool has_shortcut =
      !startup_folder.empty() && system_.files.GetFileAttributesA((startup_folder + kShortcutName).c_str()) !=
                                     os::kInvalidFileAttributes;
  if (has_shortcut || registry::RegistryKey::Open(system_.registry, os::kHkeyLocalMachine, registry::kRunKey,
                                                  os::kKeyQueryValue)
                          .HasValue(registry::kRunValue)) {
    screen_.Check2.SetTicked(true);
    return;
  }
  screen_.Check2.SetTicked(false);
  DeleteStartMenuShortcut("QDIX.exe.lnk");
}

base::Status StartupRegistration::Check2_Click() {
  if (screen_.Check2.Ticked()) {
    SetRunEntry();
    return base::kDone;
  }
  static_cast<void>(paths_.RegDelete());
  StartupDelete();
  DeleteStartMenuShortcut(ApplicationFileName(system_.processes) + kShortcutOfFile);
  DeleteStartMenuShortcut(kShortcutName);
  return base::kDone;
}

/// Writes no entry without a path: Windows would report it at each start.
void StartupRegistration::SetRunEntry() {
  const std::string path = ProgramPath(system_.processes);
  const std::int32_t run =
      path.empty() ? registry::RegistryPaths::kNoKey : paths_.GetSubkeyHandle(registry::kRunPath);
  if (run == registry::RegistryPaths::kNoKey) return;
  registry::ModuleRegistry(system_.registry)
      .SetValueEx(static_cast<os::KeyHandle>(run), registry::kRunValue, os::kRegSz, path);
  paths_.CloseSubkey(run);
}

/// Deletes the entry again under the path that older versions used, in case they left one of their own.
void StartupRegistration::StartupDelete() {
  paths_.DeleteValue("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run",
                     registry::kRunValue);
}

void StartupRegistration::DeleteStartMenuShortcut(const std::string& name) {
  const std::string start_menu = SpecialFolderPath(system_.shell_files, os::kStartMenuFolder);
  if (start_menu.empty()) return;
  system_.files.DeleteFileA((start_menu + "Programs\\StartUp\\" + name).c_str());
}

}  // namespace qdix::shell
